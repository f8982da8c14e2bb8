#include "calderix-service.h"
