#include "ui/pages/Page.h"
