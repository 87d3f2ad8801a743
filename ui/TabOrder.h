#pragma once

class QWidget;

namespace brennet {

// Lets Tab go through the controls of a window in the order in which one reads them: as its layouts
// have them, grids row by row.
void setTabOrderOfLayouts(QWidget& window);

}  // namespace brennet
