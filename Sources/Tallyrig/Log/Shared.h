// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstddef>
#include <utility>

namespace tallyrig {

/// A value that its owners share until one of them changes it.
///
/// Owners may be on different threads, each with an owner of its own: who finds itself the last one sees
/// everything that the others have done before they let go, so that it may change the value in place.
/// (`std::shared_ptr` promises nothing of that kind: its `use_count` orders nothing.)
template <typename Value>
class Shared {
  public:
    /// An owner, the only one, of a value made of `arguments`.
    template <typename... Arguments>
    static Shared make(Arguments&&... arguments) {
        return Shared(new Node{Value{std::forward<Arguments>(arguments)...}});
    }

    /// Without a value, good only for being asked whether it has one, copied, assigned to and for going away.
    Shared() = default;
    Shared(const Shared& other) : node(other.node) {
        if (node != nullptr) {
            node->owners.fetch_add(1, std::memory_order_relaxed);
        }
    }
    /// Leaves `other` without a value.
    Shared(Shared&& other) noexcept : node(std::exchange(other.node, nullptr)) {}
    Shared& operator=(Shared other) noexcept {
        std::swap(node, other.node);
        return *this;
    }
    ~Shared() {
        if (node != nullptr && node->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            delete node;
        }
    }

    /// Whether there is a value.
    explicit operator bool() const { return node != nullptr; }
    const Value& operator*() const { return node->value; }
    const Value* operator->() const { return &node->value; }

    /// The value to be changed: a copy of its own unless this is the only owner. Good until this owner is
    /// copied, assigned to or gone.
    Value& own() {
        if (node->owners.load(std::memory_order_acquire) != 1) {
            *this = make(node->value);
        }
        return node->value;
    }

    /// Whether both own one value.
    friend bool operator==(const Shared&, const Shared&) = default;

  private:
    struct Node {
        Value value;
        std::atomic<std::size_t> owners = 1;
    };

    explicit Shared(Node* only) : node(only) {}

    Node* node = nullptr;
};

}  // namespace tallyrig
