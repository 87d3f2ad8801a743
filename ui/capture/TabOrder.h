#pragma once

class QWidget;

namespace brennet {

// Lets Tab go through the controls of a window in reading order: as in its layouts, grids row by
// row. Key fields come last: each takes Tab as a key, so nothing behind it would be reached.
void setTabOrderOfLayouts(QWidget& window);

}  // namespace brennet
