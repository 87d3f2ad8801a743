#pragma once

#include "keys/Two.h"
