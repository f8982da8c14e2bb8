#include "mac-service.h"
