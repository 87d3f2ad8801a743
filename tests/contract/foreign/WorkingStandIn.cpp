// Takes the place of the library and does, of what the foreign host asks, all but one thing:
// STAND_IN_BREAKS names it. It knows the settings that the host writes, and saves in memory only.

#include "Kernel32.h"
#include "Record.h"
#include "Scenario.h"

#define NOTHING 0
#define GETTER 1
#define FILLING 2
#define FIELD 3
#define SIZE 4
#define TAIL 5
#define SWITCHED_TWICE 6
#define SWITCHING 7
#define SAVE_TIME 8
#define UNCHANGED 9
#define APPLYING 10
#define KEEPING 11
#define BAD_FILLED 12
#define BAD_APPLIED 13

namespace {

constexpr bool breaks(int what) {
  return what == STAND_IN_BREAKS;
}

constexpr unsigned kEnabled = 0x80000000;

bool contains(const char* text, const char* part) {
  for (; *text != '\0'; ++text) {
    unsigned same = 0;
    while (part[same] != '\0' && text[same] == part[same]) ++same;
    if (part[same] == '\0') return true;
  }
  return false;
}

// The file's text in `text`; false where there is none.
template <unsigned Size>
bool read(const wchar_t* path, char (&text)[Size]) {
  if (path == nullptr) return false;
  const Handle file = CreateFileW(path, kGenericRead, 0, nullptr, kOpenExisting, 0, nullptr);
  if (file == reinterpret_cast<Handle>(-1)) return false;
  unsigned done = 0;
  ReadFile(file, text, Size - 1, &done, nullptr);
  text[done] = '\0';
  CloseHandle(file);
  return true;
}

bool isWritable(const unsigned char* bytes, unsigned size) {
  const unsigned first = reinterpret_cast<unsigned>(bytes);
  if (first + size < first) return false;
  for (unsigned at = first; at < first + size;) {
    MemoryRange range;
    if (VirtualQuery(reinterpret_cast<Address>(at), &range, sizeof(range)) == 0) return false;
    if (range.state != kMemCommit || range.protect != kPageReadWrite) return false;
    at = reinterpret_cast<unsigned>(range.base) + range.size;
  }
  return true;
}

unsigned number(const unsigned char* bytes) {
  unsigned value = 0;
  for (unsigned i = 0; i < 4; ++i) value |= static_cast<unsigned>(bytes[i]) << 8 * i;
  return value;
}

unsigned shared(unsigned size) {
  return size < kRecordSize ? size : kRecordSize;
}

// The interface, in the order of the slots.
class Object {
 public:
  virtual bool load(const wchar_t* path) {
    char text[2048];
    if (!read(path, text)) return false;
    has_[0] = contains(text, "<DisableLWinFlag>1");
    has_[1] = contains(text, "<ViewNoDragFlag>1") && !breaks(GETTER);
    has_[2] = contains(text, "<HotkeyContrl>5120");
    has_[3] = contains(text, "<Key id=\"0\">4096");
    has_[4] = contains(text, "<StartJSQFlag>1");
    if (!isKept_ || breaks(KEEPING)) setLoaded();
    saveTime_ = keptTime_;
    return true;
  }
  virtual void setDataFolder(const wchar_t*) {}
  virtual bool showDialog(bool*, unsigned) { return false; }
  virtual bool fill(unsigned char* bytes) {
    if (!isWritable(bytes, 4)) return breaks(BAD_FILLED);
    const unsigned size = number(bytes);
    if (!isWritable(bytes, shared(size))) return breaks(BAD_FILLED);
    if (breaks(FILLING) && size != kRecordSize) return false;
    for (unsigned i = 4; i < shared(size); ++i) bytes[i] = record_[i];
    if (breaks(SIZE) && size > kRecordSize) bytes[kSize] = 0;
    if (breaks(TAIL) && size > kRecordSize) bytes[kRecordSize] = 0;
    return true;
  }
  virtual bool disablesLeftWindowsKey() { return has_[0]; }
  virtual unsigned saveTime() { return saveTime_; }
  // Of a bool on its way in, only the lowest byte counts.
  virtual bool setEnabled(unsigned enable, unsigned saveTime) {
    const unsigned flags =
        (number(record_ + kFlags) & ~kEnabled) | ((enable & 1) != 0 ? kEnabled : 0);
    if (flags == number(record_ + kFlags)) return breaks(SWITCHED_TWICE);
    if (breaks(SWITCHING)) return false;
    if (breaks(SAVE_TIME)) saveTime_ = saveTime;
    set(kFlags, 4, flags);
    return true;
  }
  virtual bool keepsPicture() { return has_[1]; }
  virtual bool usesCapsLock() { return has_[2]; }
  virtual bool usesShift() { return has_[3]; }
  virtual int apply(const unsigned char* bytes, unsigned saveTime) {
    constexpr int kRefused = breaks(BAD_APPLIED) ? 1 : 0;
    if (!isWritable(bytes, 4) || !isWritable(bytes, number(bytes))) return kRefused;
    bool isChanged = false;
    for (unsigned i = 4; i < shared(number(bytes)); ++i) {
      isChanged = isChanged || bytes[i] != record_[i];
      record_[i] = bytes[i];
    }
    if (!isChanged) return breaks(UNCHANGED) ? 0 : -1;
    isKept_ = true;
    keptTime_ = saveTime;
    return breaks(APPLYING) ? -1 : 0;
  }
  virtual bool startsJsq() { return has_[4]; }

  // There is no C runtime to call a constructor.
  void reset() { set(kZoomValue, 1, 100); }

 private:
  void set(Offset offset, unsigned width, unsigned value) {
    for (unsigned i = 0; i < width; ++i) {
      record_[offset + i] = static_cast<unsigned char>(value >> 8 * i);
    }
  }

  // What the record holds of the settings that are loaded as a whole.
  void setLoaded() {
    set(kFlags, 4, kEnabled | 0x31);
    set(kFirstHeroSkill, 2, 0x5108);
    set(kZoomValue, 1, 90);
    set(kHotkeyContrl, 2, 0x1400);
    set(kLedgerKey0, 2, 0x1000);
    set(kChatWheelKey, 2, 0x5400);
    set(kHeroSkill7, 2, 0x5700);
    set(kHideUI, 1, breaks(FIELD) ? 0 : 1);
    set(kLeftAltShowHP, 1, 1);
  }

  bool has_[5] = {};
  bool isKept_ = false;
  unsigned saveTime_ = 0;
  unsigned keptTime_ = 77;
  unsigned char record_[kRecordSize] = {};
};

Object object;

}  // namespace

extern "C" __declspec(dllexport) Object* GetBrennetPtr() {
  return &object;
}

extern "C" int __stdcall DllMain(Module, unsigned, void*) {
  object.reset();
  return 1;
}
