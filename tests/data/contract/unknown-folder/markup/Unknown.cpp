#include "tests/support/Helper.h"
