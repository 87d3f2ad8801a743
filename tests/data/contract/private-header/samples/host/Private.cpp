#include "model/HotkeyConfig.h"
