// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace quillon {

/// Tells what changed in an observable store: one place that says which signal belongs to which property.
///
/// The store keeps all that has a change signal in one struct, `Values`, which is cheap to copy and to
/// compare: what is large is shared, or stands there with a number that is another one after each change. It
/// changes them inside an `Operation` only.
template <typename Store, typename Values>
class StoreState {
  public:
    struct Property {
        /// Whether the property is another one now.
        bool (*differs)(const Values& before, const Values& now);
        /// The signal to be sent then.
        void (Store::*changed)();
    };

    /// For properties that are members of `Values`: whether any of these differs.
    template <auto... members>
    static bool differ(const Values& before, const Values& now) {
        return (... || (before.*members != now.*members));
    }

    /// All three outlive the object. Signals are sent in the order of `observedProperties`.
    StoreState(Store& observedStore, Values& observedValues, std::span<const Property> observedProperties)
        : store(observedStore), values(observedValues), properties(observedProperties) {}

    /// Brackets what belongs together as one change. Operations nest; when the outermost ends, the properties
    /// that differ from its beginning are told, each once. All is decided before the first signal is sent:
    /// who is told sees every new value and may begin another operation, whose signals are sent at its end
    /// and so before those of this one that are still due.
    ///
    /// If an exception ends the outermost, the values are again those of its beginning and nothing is sent.
    class Operation {
      public:
        explicit Operation(StoreState& storeState) : state(storeState) {
            if (state.runningOperations == 0) {
                before.emplace(state.values);
            }
            ++state.runningOperations;
        }
        Operation(const Operation&) = delete;
        Operation& operator=(const Operation&) = delete;
        // What a slot throws goes on to whoever began the operation, when all slots have been told.
        ~Operation() noexcept(false) {
            if (--state.runningOperations > 0) {
                return;
            }
            if (std::uncaught_exceptions() > exceptionsBefore) {
                state.values = std::move(*before);
            } else {
                state.announceChangesSince(*before);
            }
        }

      private:
        StoreState& state;
        std::optional<Values> before;  ///< Absent inside another operation.
        int exceptionsBefore = std::uncaught_exceptions();
    };

  private:
    void announceChangesSince(const Values& before) {
        std::vector<void (Store::*)()> due;
        for (const Property& property : properties) {
            if (property.differs(before, values)) {
                due.push_back(property.changed);
            }
        }
        std::exception_ptr thrown;
        for (const auto signal : due) {
            try {
                (store.*signal)();
            } catch (...) {
                thrown = std::current_exception();
            }
        }
        if (thrown) {
            std::rethrow_exception(thrown);
        }
    }

    Store& store;
    Values& values;
    std::span<const Property> properties;
    int runningOperations = 0;
};

}  // namespace quillon
