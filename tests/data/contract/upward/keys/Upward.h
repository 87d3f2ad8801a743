#pragma once

#include "model/HotkeyConfig.h"
