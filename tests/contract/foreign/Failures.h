// What the foreign programs can find wrong: the exit code, and what it means.
#pragma once

#define FOREIGN_FAILURES(X)                                                         \
  X(1, kNotWine, "this is no Wine: the player's own files would be written")        \
  X(2, kCrash, "the call crashed")                                                  \
  X(3, kNoSettingsFile, "the settings file for the test cannot be written or read") \
  X(4, kNoMemory, "the memory for the test cannot be had")                          \
  X(5, kNoCount, "the system does not tell what the process holds")                 \
  X(10, kNoLibrary, "the library does not load")                                    \
  X(11, kNoExport, "the library does not export GetBrennetPtr")                     \
  X(12, kNoObject, "GetBrennetPtr gives no object")                                 \
  X(13, kOtherObject, "GetBrennetPtr gives another object the second time")         \
  X(14, kStillLoaded, "the library is still there after FreeLibrary")               \
  X(15, kSamePlace, "the library cannot be loaded at another address")              \
  X(20, kStackMoved, "the stack pointer is not what it was before the call")        \
  X(21, kEbxLost, "the call does not keep ebx")                                     \
  X(22, kEsiLost, "the call does not keep esi")                                     \
  X(23, kEdiLost, "the call does not keep edi")                                     \
  X(24, kEbpLost, "the call does not keep ebp")                                     \
  X(25, kNoBool, "the byte of a bool is neither 0 nor 1")                           \
  X(26, kX87ControlChanged, "the call changes the control word of the x87 unit")    \
  X(27, kSseControlChanged, "the call changes the control bits of MXCSR")           \
  X(28, kDirectionChanged, "the call leaves the direction flag set")                \
  X(30, kNoDefaults, "before any load a getter does not give the default")          \
  X(31, kNoDefaultBlock, "before any load the record does not hold the defaults")   \
  X(32, kDialogConfirmed, "the dialog is confirmed where the result has no place")  \
  X(33, kNullPathLoaded, "a null path is loaded")                                   \
  X(34, kMissingFileLoaded, "a missing file is loaded")                             \
  X(40, kNotLoaded, "the settings file is not loaded")                              \
  X(41, kWrongGetter, "a getter does not give what the settings file says")         \
  X(42, kNotFilled, "a record is not filled")                                       \
  X(43, kWrongField, "a field of the record is not what the settings file says")    \
  X(44, kSizeChanged, "the size field of the record was changed")                   \
  X(45, kTailTouched, "bytes behind the announced size were touched")               \
  X(50, kSwitchedTwice, "the state that is there already is set and saved")         \
  X(51, kNotSwitched, "the feature is not switched")                                \
  X(52, kSaveTimeChanged, "a save changes the time of the last load")               \
  X(60, kUnchangedApplied, "an unchanged record is applied")                        \
  X(61, kNotApplied, "a changed record is not applied")                             \
  X(62, kNotKept, "what was applied is not there after another load")               \
  X(70, kBadMemoryFilled, "memory that is not writable is filled")                  \
  X(71, kBadMemoryApplied, "memory that is not writable is applied")                \
  X(72, kFileChanged, "the settings file changed without a reason")                 \
  X(80, kHandlesGrow, "loads keep handles behind")                                  \
  X(81, kTlsGrows, "loads keep indexes of thread-local storage behind")             \
  X(82, kHeapsGrow, "loads keep blocks of a heap behind")                           \
  X(83, kMemoryGrows, "loads keep pages of memory behind")

enum Failure : unsigned {
#define FOREIGN_FAILURE(code, name, meaning) name = code,
  FOREIGN_FAILURES(FOREIGN_FAILURE)
#undef FOREIGN_FAILURE
};
