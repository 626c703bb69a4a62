#include "formats/ds9regions.h"
