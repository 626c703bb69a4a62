#include "formats/csvtables.h"
