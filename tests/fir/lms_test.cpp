#include "support/export_test.h"
