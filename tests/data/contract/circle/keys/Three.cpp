#include "keys/Three.h"

#include "keys/One.h"
