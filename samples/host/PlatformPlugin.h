#pragma once

#include <QString>

// The file without which no windows can be opened, "platforms\qwindows.dll", if it is missing;
// nothing if it is not, on other systems, and when QT_QPA_PLATFORM names another plugin. Without it
// Qt ends the program while the QApplication is made, with a message box that names no file; so
// call this before there is any application object. The arguments are those of the program.
QString missingPlatformPlugin(int& argc, char** argv);
