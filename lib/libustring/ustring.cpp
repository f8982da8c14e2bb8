#include "ustring.h"
