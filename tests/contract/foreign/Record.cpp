#include "Record.h"

#include "Kernel32.h"
#include "Report.h"

Record::Record(unsigned size, unsigned announced)
    : pages_(static_cast<unsigned char*>(
          VirtualAlloc(nullptr, 2 * kPageSize, kMemReserve | kMemCommit, kPageReadWrite))),
      bytes_(pages_ + kPageSize - size) {
  require(pages_ != nullptr, kNoMemory);
  unsigned before = 0;
  require(VirtualProtect(pages_ + kPageSize, kPageSize, kPageNoAccess, &before) != 0, kNoMemory);
  for (unsigned i = 0; i < size; ++i) bytes_[i] = kRecordFiller;
  setNumber(kSize, size < 4 ? size : 4, announced);
}

Record::~Record() {
  VirtualFree(pages_, 0, kMemRelease);
}

unsigned Record::number(Offset offset, unsigned width) const {
  unsigned value = 0;
  for (unsigned i = 0; i < width; ++i) value |= static_cast<unsigned>(bytes_[offset + i]) << 8 * i;
  return value;
}

void Record::setNumber(Offset offset, unsigned width, unsigned value) const {
  for (unsigned i = 0; i < width; ++i) {
    bytes_[offset + i] = static_cast<unsigned char>(value >> 8 * i);
  }
}

void Record::makeReadOnly() const {
  unsigned before = 0;
  require(VirtualProtect(pages_, kPageSize, kPageReadOnly, &before) != 0, kNoMemory);
}
