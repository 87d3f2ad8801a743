#pragma once

#include <QString>

#include "ui/capture/CaptureFields.h"
#include "ui/capture/EditControl.h"

class QWidget;

namespace brennet {

// How the basic pages capture keys: fields for features first, then those whose object names say
// what they edit. Warnings are modal to `page`, which outlives the result.
[[nodiscard]] CapturePage basicCapturePage(BasicPage kind, QWidget& page);

// What getEditControlTypeByParseName (EditControl.h) says, with a debug line about it.
bool tracedEditControl(const QString& name, BasicPage kind, EditControl& control);

}  // namespace brennet
