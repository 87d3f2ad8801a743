#include "Scenario.h"

#include "Record.h"
#include "Report.h"

namespace {

struct Field {
  Offset offset;
  unsigned width;
  unsigned value;
};

constexpr Field kDefaultFields[] = {
    {kSize, 4, kRecordSize}, {kFlags, 4, 0},         {kFirstHeroSkill, 2, 0}, {kZoomValue, 1, 100},
    {kHotkeyContrl, 2, 0},   {kLedgerKey0, 2, 0},    {kChatWheelKey, 2, 0},   {kHeroSkill7, 2, 0},
    {kHideUI, 1, 0},         {kLeftAltShowHP, 1, 0},
};

// The flags are the left Windows key, the unstretched picture, delay optimisation and the global
// switch.
constexpr Field kLoadedFields[] = {
    {kSize, 4, kRecordSize},    {kFlags, 4, 0x80000031},    {kFirstHeroSkill, 2, 0x5108},
    {kZoomValue, 1, 90},        {kHotkeyContrl, 2, 0x1400}, {kLedgerKey0, 2, 0x1000},
    {kChatWheelKey, 2, 0x5400}, {kHeroSkill7, 2, 0x5700},   {kHideUI, 1, 1},
    {kLeftAltShowHP, 1, 1},
};

bool fill(const Library& library, const Record& record) {
  return library.callForBool(kFillHotkeyBlock, record.bytes());
}

unsigned apply(const Library& library, const void* record, unsigned saveTime) {
  return library.call(kApplyHotkeyBlock, record, saveTime);
}

struct Getter {
  Slot slot;
  const char* element;  // what makes it 1
};

// As keys, Caps Lock switches the feature, and Shift is one of the Orrery panel's.
constexpr Getter kGetters[] = {
    {kGetDisableLWinFlag, "<DisableLWinFlag>1</DisableLWinFlag>"},
    {kGetViewNoDragFlag, "<ViewNoDragFlag>1</ViewNoDragFlag>"},
    {kIsCapsLockUsed, "<HotkeyContrl>5120</HotkeyContrl>"},
    {kIsShiftUsed, "<SecretaryKey><Key id=\"0\">4096</Key></SecretaryKey>"},
    {kGetStartJSQFlag, "<StartJSQFlag>1</StartJSQFlag>"},
};

// The integer -1.
constexpr unsigned kNotTaken = 0xFFFFFFFF;

template <unsigned Count>
void requireFields(const Library& library, const Field (&fields)[Count], Failure failure) {
  const Record record(kRecordSize, kRecordSize);
  require(fill(library, record), kNotFilled);
  for (const Field& field : fields) {
    require(record.number(field.offset, field.width) == field.value, failure);
  }
}

// Bytes and bools alike are 0 or 1 in al.
void requireGetters(const Library& library, bool expected, Failure failure) {
  for (const Getter& getter : kGetters) {
    require(library.callForBool(getter.slot) == expected, failure);
  }
}

unsigned flagsOf(const Library& library) {
  const Record record(kRecordSize, kRecordSize);
  require(fill(library, record), kNotFilled);
  return record.number(kFlags, 4);
}

}  // namespace

// All that the getters return, Q with quick cast on the first hero skill, and W on another, in the
// order in which the library looks for them.
const char kSettings[] =
    "<ZoomValue>90</ZoomValue>"
    "<HeroSkillKey><Key id=\"0\" autocast=\"1\">20736</Key><Key id=\"7\">22272</Key></HeroSkillKey>"
    "<SecretaryKey><Key id=\"0\">4096</Key></SecretaryKey>"
    "<DisableLWinFlag>1</DisableLWinFlag><ViewNoDragFlag>1</ViewNoDragFlag>"
    "<StartJSQFlag>1</StartJSQFlag><HideUI>1</HideUI>"
    "<DisableLeftAltShowHP>1</DisableLeftAltShowHP>"
    "<HotkeyContrl>5120</HotkeyContrl><ChatWheelkey>21504</ChatWheelkey>";

void checkDefaults(const Library& library) {
  requireGetters(library, false, kNoDefaults);
  require(library.call(kGetLastSaveTime) == 0, kNoDefaults);
  requireFields(library, kDefaultFields, kNoDefaultBlock);
}

void checkRefusals(const Library& library) {
  library.call(kSetDataFolder, static_cast<const void*>(nullptr));
  library.call(kSetDataFolder, L"C:\\no\\such\\folder");
  require(!library.callForBool(kLoadSettings, static_cast<const void*>(nullptr)), kNullPathLoaded);
  require(!library.callForBool(kLoadSettings, L"C:\\no\\such\\KeyInfo.xml"), kMissingFileLoaded);
  require(!library.callForBool(kShowSettingsDialog, static_cast<const void*>(nullptr), 76U),
          kDialogConfirmed);
}

void checkLoad(const Library& library, const SettingsFile& settings) {
  require(library.callForBool(kLoadSettings, settings.path()), kNotLoaded);
  requireGetters(library, true, kWrongGetter);
  require(library.call(kGetLastSaveTime) == 77, kWrongGetter);
  requireFields(library, kLoadedFields, kWrongField);
}

void checkEachGetter(const Library& library) {
  for (const Getter& set : kGetters) {
    const SettingsFile settings(set.element);
    require(library.callForBool(kLoadSettings, settings.path()), kNotLoaded);
    for (const Getter& getter : kGetters) {
      require(library.callForBool(getter.slot) == (&getter == &set), kWrongGetter);
    }
  }
}

void checkAnnouncedSizes(const Library& library) {
  struct Case {
    unsigned size;
    unsigned announced;
    unsigned filled;
  };
  constexpr Case kCases[] = {
      {4, 4, 4},
      {100, 69, 69},
      {kRecordSize, kRecordSize - 1, kRecordSize - 1},
      {2000, 2000, kRecordSize},
      {kRecordSize, 0xFFFFFFFF, kRecordSize},  // nothing behind a full record is touched
  };
  for (const Case& one : kCases) {
    const Record record(one.size, one.announced);
    require(fill(library, record), kNotFilled);
    require(record.number(kSize, 4) == one.announced, kSizeChanged);
    require(one.filled <= kZoomValue || record.number(kZoomValue, 1) == 90, kWrongField);
    for (unsigned i = one.filled; i < one.size; ++i) {
      require(record.bytes()[i] == kRecordFiller, kTailTouched);
    }
  }
}

void checkSwitch(const Library& library) {
  require(!library.callForBool(kSetEnabled, kTrue, 78U), kSwitchedTwice);
  require(library.callForBool(kSetEnabled, kFalse, 78U), kNotSwitched);
  require(flagsOf(library) == 0x31, kNotSwitched);
  require(!library.callForBool(kSetEnabled, kFalse, 79U), kSwitchedTwice);
  require(library.callForBool(kSetEnabled, kTrue, 79U), kNotSwitched);
  require(flagsOf(library) == 0x80000031, kNotSwitched);
  require(library.call(kGetLastSaveTime) == 77, kSaveTimeChanged);
}

void checkApply(const Library& library, const SettingsFile& settings) {
  const Record record(kRecordSize, kRecordSize);
  require(fill(library, record), kNotFilled);
  require(apply(library, record.bytes(), 80) == kNotTaken, kUnchangedApplied);

  record.setNumber(kZoomValue, 1, 120);
  record.setNumber(kFirstHeroSkill, 2, 0x5208);
  require(apply(library, record.bytes(), 81) == 0, kNotApplied);
  require(library.call(kGetLastSaveTime) == 77, kSaveTimeChanged);
  require(apply(library, record.bytes(), 82) == kNotTaken, kUnchangedApplied);

  require(library.callForBool(kLoadSettings, settings.path()), kNotLoaded);
  require(library.call(kGetLastSaveTime) == 81, kNotKept);
  const Field kept[] = {{kZoomValue, 1, 120}, {kFirstHeroSkill, 2, 0x5208}, {kHideUI, 1, 1}};
  requireFields(library, kept, kNotKept);
}

void checkBadMemory(const Library& library, const SettingsFile& settings) {
  const unsigned before = settings.checksum();
  const Record page(4, 4);
  const Record cutSize(3, 0);
  const Record cutTail(100, 101);
  const Record readOnly(kRecordSize, kRecordSize);
  require(fill(library, readOnly), kNotFilled);
  readOnly.setNumber(kZoomValue, 1, 33);
  readOnly.makeReadOnly();
  const void* const bad[] = {
      nullptr,
      reinterpret_cast<void*>(16),
      reinterpret_cast<void*>(0xFFFFFFFF),
      page.bytes() + 4,  // without any access
      cutSize.bytes(),
      cutTail.bytes(),
      readOnly.bytes(),
  };
  for (const void* record : bad) {
    require(!library.callForBool(kFillHotkeyBlock, record), kBadMemoryFilled);
    require(apply(library, record, 83) == 0, kBadMemoryApplied);
  }

  const Record shorter(kRecordSize - 1, 0xFFFFFFFF);
  require(!fill(library, shorter), kBadMemoryFilled);
  const Record endless(kRecordSize, kRecordSize);
  require(fill(library, endless), kNotFilled);
  endless.setNumber(kSize, 4, 0xFFFFFFFF);
  endless.setNumber(kZoomValue, 1, 33);
  require(apply(library, endless.bytes(), 84) == 0, kBadMemoryApplied);
  require(settings.checksum() == before, kFileChanged);
}
