#include "check/Rules.h"

namespace brennet::check {
namespace {

// In the order of Rule.
constexpr std::array<RuleText, kRules> kTexts = {{
    {"thread", "called on another thread than the application's",
     "All calls come on the host's GUI thread.",
     "Have the thread of the QApplication make the call."},
    {"object", "called on something else than the object; nothing was done",
     "Each slot is a member function of the one object that GetBrennetPtr returns; in 32-bit "
     "Windows the object is in ECX, and the function removes its arguments from the stack.",
     "Declare the slots as IBrennet.h does, and call them on the pointer itself, not on a copy."},
    {"save-before-load", "saves before any settings were loaded",
     "Saves go to the path of LoadSettings; before it they fail.",
     "Call LoadSettings once at the start."},
    {"dialog-before-load", "opens the dialog before any settings were loaded",
     "The dialog comes after LoadSettings; without its path nothing can be saved.",
     "Call LoadSettings once at the start."},
    {"dialog-before-data-folder", "opens the dialog before the data folder is known",
     "The dialog comes after SetDataFolder, which names the folder of Tollamere.reg.",
     "Call SetDataFolder once at the start."},
    {"no-application", "opens the dialog without an application object",
     "The host owns a QApplication; without one nothing is shown.",
     "Make the QApplication, not a QCoreApplication, before the call, and keep it."},
    {"null", "a pointer is null", "A null pointer is answered with a failure; nothing is done.",
     "Pass the address of what the operation reads or writes."},
    {"text", "the text cannot be read up to its end",
     "Texts are UTF-16, end in a zero, and stay until the call returns.",
     "Pass memory that is still yours, and end the text with a zero."},
    {"memory", "memory that was passed cannot be written",
     "The memory is the host's and has to be writable, a record in all its `size` bytes.",
     "Pass memory that is still yours, and set `size` to the bytes that there are."},
    {"size-not-set", "`size` of the record makes no sense",
     "The host writes the size of its memory into `size` before each fill and each apply.",
     "Set `block.size = sizeof(brennet::HotkeyBlock)` before the call."},
    {"size-unknown", "`size` is that of no known record",
     "The record has 1807 bytes in every version so far; only the smaller of the two sizes is "
     "used.",
     "Use HotkeyBlock.h of this version, packed to single bytes."},
    {"reserved", "the record came back with other reserved bits than it was filled with",
     "Reserved fields and the free bits of `flags` are 0.",
     "Change named fields only; what else changed was overwritten by accident."},
    {"reentry", "called while another operation runs",
     "One call ends before the next begins; only while the dialog is open may others come.",
     "Do not call from handlers that run inside a call, such as a handler for messages."},
    {"dialog-open", "called while the dialog is open",
     "While the dialog is open, ShowSettingsDialog answers false and ApplyHotkeyBlock -1.",
     "Wait until ShowSettingsDialog has returned."},
    {"floating-point", "the floating-point unit is not in its default state",
     "Exceptions are masked, results are rounded to the nearest, with at least 53 bits.",
     "Restore the control words after code that changes them; Direct3D 9 does without "
     "D3DCREATE_FPU_PRESERVE."},
    {"unloaded", "called after the library was unloaded; nothing was done",
     "The pointer is dead after FreeLibrary.",
     "Fetch the pointer anew after each load, and forget it before FreeLibrary."},
}};

}  // namespace

const RuleText& textOf(Rule rule) {
  return kTexts[static_cast<std::size_t>(rule)];
}

}  // namespace brennet::check
