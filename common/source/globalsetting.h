#pragma once

// Where the instrument's processes look for it; the platform's services read the block too.
#include "files/globalsetting.h"
