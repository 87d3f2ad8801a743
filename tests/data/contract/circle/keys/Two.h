#pragma once

#include "keys/Three.h"
