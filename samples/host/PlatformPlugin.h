#pragma once

#include <QString>

// Which file is missing for windows to be opened, "platforms\qwindows.dll", or nothing where none
// is: on other systems, and where QT_QPA_PLATFORM names another plugin. Without it Qt ends the
// program while the QApplication is made, in a message box that names no file; so this is to be
// asked before there is any application object. The arguments are those of the program.
QString missingPlatformPlugin(int& argc, char** argv);
