// SPDX-License-Identifier: GPL-3.0-or-later
// Here for the meta-object of the interface, which is made once.
#include "Quillon/Platform/HTTP/HTTP.h"
