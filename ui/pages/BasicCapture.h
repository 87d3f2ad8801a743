#pragma once

#include <QString>

#include "ui/capture/CaptureFields.h"
#include "ui/capture/EditControl.h"

class QWidget;

namespace brennet {

// How the basic pages capture keys. A field's name is looked up among the elements (FeatureKeys.h)
// first, then among the older lists (EditControl.h). Warnings are modal to `page`, which has to
// outlive the result.
[[nodiscard]] CapturePage basicCapturePage(BasicPage kind, QWidget& page);

// The same as getEditControlTypeByParseName (EditControl.h), with a debug line about it.
bool tracedEditControl(const QString& name, BasicPage kind, EditControl& control);

}  // namespace brennet
