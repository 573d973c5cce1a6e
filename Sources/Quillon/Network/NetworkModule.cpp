// SPDX-License-Identifier: GPL-3.0-or-later
// Here for the meta-object of the module.
#include "Quillon/Network/NetworkModule.h"
