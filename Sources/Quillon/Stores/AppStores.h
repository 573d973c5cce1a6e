// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillon {

class CompareStore;
class ContestStore;
class CrossCheckStore;
class LogStore;

/// The stores of the program, for those who have to do with all of them. None holds another; all outlive
/// whoever takes this.
struct AppStores {
    LogStore& log;
    CompareStore& compare;
    ContestStore& contest;
    CrossCheckStore& crossCheck;
};

}  // namespace quillon
