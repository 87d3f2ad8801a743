#include "ImportTable.h"

#include <QFile>

namespace {

// The layout of a PE file, as far as needed to find the import table. Offsets are in bytes, each
// relative to the structure that its name begins with.
constexpr qint64 kFileHeaderOffset = 0x3C;
constexpr qint64 kHeaderSections = 6;
constexpr qint64 kHeaderOptionalSize = 20;
constexpr qint64 kHeaderSize = 24;
constexpr quint32 kMagic32 = 0x10B;
constexpr qint64 kOptionalImports32 = 104;
constexpr qint64 kOptionalImports64 = 120;
constexpr qint64 kSectionSize = 40;
constexpr qint64 kSectionAddress = 12;
constexpr qint64 kSectionFileSize = 16;
constexpr qint64 kSectionFileOffset = 20;
constexpr qint64 kImportSize = 20;
constexpr qint64 kImportName = 12;

class PeFile {
 public:
  explicit PeFile(QByteArray bytes) : bytes_(std::move(bytes)) {
    header_ = number(kFileHeaderOffset, 4);
    if (number(0, 2) != 0x5A4D || number(header_, 4) != 0x4550) bytes_.clear();
  }

  [[nodiscard]] QStringList imports() const {
    const qint64 optional = header_ + kHeaderSize;
    const bool is32 = number(optional, 2) == kMagic32;
    const quint32 table = number(optional + (is32 ? kOptionalImports32 : kOptionalImports64), 4);
    QStringList names;
    // The table ends in an entry without a name. Outside the file all numbers are 0.
    for (qint64 entry = offsetOf(table); entry != 0; entry += kImportSize) {
      const qint64 name = offsetOf(number(entry + kImportName, 4));
      if (name == 0) break;
      names += QString::fromLatin1(bytes_.constData() + name);
    }
    return names;
  }

 private:
  // The little-endian number of `size` bytes at `at`, or 0 where the file has none.
  [[nodiscard]] quint32 number(qint64 at, int size) const {
    if (at + size > bytes_.size()) return 0;
    quint32 value = 0;
    for (qint64 i = at + size; i-- > at;) {
      value = value << 8U | static_cast<unsigned char>(bytes_[static_cast<int>(i)]);
    }
    return value;
  }

  // The offset in the file of an address of the loaded image; 0 if it is in none of the sections.
  [[nodiscard]] qint64 offsetOf(quint32 address) const {
    const qint64 first = header_ + kHeaderSize + number(header_ + kHeaderOptionalSize, 2);
    const quint32 sections = number(header_ + kHeaderSections, 2);
    for (quint32 i = 0; i < sections; ++i) {
      const qint64 section = first + i * kSectionSize;
      const qint64 within = qint64(address) - number(section + kSectionAddress, 4);
      const qint64 offset = number(section + kSectionFileOffset, 4) + within;
      const bool isInside = within >= 0 && within < number(section + kSectionFileSize, 4);
      if (isInside && offset < bytes_.size()) return offset;
    }
    return 0;
  }

  QByteArray bytes_;
  qint64 header_ = 0;
};

}  // namespace

QStringList importedLibraries(const QString& file) {
  QFile source(file);
  if (!source.open(QIODevice::ReadOnly)) return {};
  return PeFile(source.readAll()).imports();
}
