#pragma once

class QWidget;

namespace brennet {

// Lets Tab go through the controls of a window in the order in which one reads them: as its layouts
// have them, grids row by row. Key fields come last: each keeps Tab as a key, and nothing behind it
// would be reached.
void setTabOrderOfLayouts(QWidget& window);

}  // namespace brennet
