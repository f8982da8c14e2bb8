#include "qtsingleapplication.h"
