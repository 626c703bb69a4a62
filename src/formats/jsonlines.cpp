#include "formats/jsonlines.h"
