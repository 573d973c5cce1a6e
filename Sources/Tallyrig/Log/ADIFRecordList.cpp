// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Log/ADIFRecordList.h"

#include <algorithm>
#include <utility>

namespace tallyrig {

namespace {

constexpr std::size_t leafCapacity = 128;
constexpr std::size_t branchCapacity = 128;

/// The index of the child that holds `position`, where `ends` are the cumulated sizes of the children.
std::size_t childAt(const std::vector<std::size_t>& ends, std::size_t position) {
    return static_cast<std::size_t>(std::upper_bound(ends.begin(), ends.end(), position) - ends.begin());
}

std::size_t startOf(const std::vector<std::size_t>& ends, std::size_t child) {
    return child == 0 ? 0 : ends[child - 1];
}

}  // namespace

struct ADIFRecordList::Leaf {
    std::vector<ADIFRecord> records;
};

/// No leaf is empty.
struct ADIFRecordList::Branch {
    std::vector<Shared<Leaf>> leaves;
    std::vector<std::size_t> ends;  ///< Behind each leaf, counted from the start of the branch.

    void append(Shared<Leaf> leaf) {
        ends.push_back(startOf(ends, ends.size()) + leaf->records.size());
        leaves.push_back(std::move(leaf));
    }
};

/// No branch is empty.
struct ADIFRecordList::Root {
    std::vector<Shared<Branch>> branches;
    std::vector<std::size_t> ends;  ///< Behind each branch, counted from the start of the list.
    bool idsAscend = true;

    std::size_t size() const { return ends.empty() ? 0 : ends.back(); }
    const ADIFRecord& last() const { return branches.back()->leaves.back()->records.back(); }

    void append(Shared<Leaf> leaf) {
        if (branches.empty() || branches.back()->leaves.size() == branchCapacity) {
            branches.push_back(Shared<Branch>::make());
            ends.push_back(size());
        }
        branches.back().own().append(std::move(leaf));
        ends.back() = startOf(ends, ends.size() - 1) + branches.back()->ends.back();
    }
};

ADIFRecordList::Iterator::Iterator(const Root* list, std::size_t branchIndex, std::size_t leafIndex,
                                   std::size_t slotIndex)
    : root(list), branch(branchIndex), leaf(leafIndex) {
    settle();
    if (record != nullptr) {
        record += slotIndex;
    }
}

/// Stands at the first record of the leaf, or at the end.
void ADIFRecordList::Iterator::settle() {
    if (branch < root->branches.size() && leaf == root->branches[branch]->leaves.size()) {
        ++branch;
        leaf = 0;
    }
    if (branch == root->branches.size()) {
        record = nullptr;
        leafEnd = nullptr;
        return;
    }
    const std::vector<ADIFRecord>& records = root->branches[branch]->leaves[leaf]->records;
    record = records.data();
    leafEnd = records.data() + records.size();
}

ADIFRecordList::Iterator& ADIFRecordList::Iterator::operator++() {
    if (++record == leafEnd) {
        ++leaf;
        settle();
    }
    return *this;
}

ADIFRecordList::ADIFRecordList() : root(Shared<Root>::make()) {}

ADIFRecordList::ADIFRecordList(std::vector<ADIFRecord> records) : ADIFRecordList() {
    for (std::size_t begin = 0; begin < records.size(); begin += leafCapacity) {
        const std::size_t count = std::min(leafCapacity, records.size() - begin);
        const auto from = std::make_move_iterator(records.begin() + static_cast<std::ptrdiff_t>(begin));
        Leaf leaf;
        leaf.records.assign(from, from + static_cast<std::ptrdiff_t>(count));
        Root& own = root.own();
        for (const ADIFRecord& record : leaf.records) {
            const ADIFRecord* const previous = &record != leaf.records.data() ? &record - 1
                                               : own.size() > 0               ? &own.last()
                                                                              : nullptr;
            own.idsAscend = own.idsAscend && (previous == nullptr || previous->id() < record.id());
        }
        own.append(Shared<Leaf>::make(std::move(leaf)));
    }
}

ADIFRecordList::ADIFRecordList(const ADIFRecordList& other) = default;
ADIFRecordList::ADIFRecordList(ADIFRecordList&& other) noexcept = default;
ADIFRecordList& ADIFRecordList::operator=(const ADIFRecordList& other) = default;
ADIFRecordList& ADIFRecordList::operator=(ADIFRecordList&& other) noexcept = default;
ADIFRecordList::~ADIFRecordList() = default;

std::size_t ADIFRecordList::size() const {
    return root->size();
}

const ADIFRecord& ADIFRecordList::operator[](std::size_t index) const {
    const std::size_t branchIndex = childAt(root->ends, index);
    const Branch& branch = *root->branches[branchIndex];
    const std::size_t within = index - startOf(root->ends, branchIndex);
    const std::size_t leafIndex = childAt(branch.ends, within);
    return branch.leaves[leafIndex]->records[within - startOf(branch.ends, leafIndex)];
}

ADIFRecordList::Iterator ADIFRecordList::begin() const {
    return {&*root, 0, 0, 0};
}

ADIFRecordList::Iterator ADIFRecordList::end() const {
    return {&*root, root->branches.size(), 0, 0};
}

ADIFRecordList::Iterator ADIFRecordList::at(std::size_t index) const {
    if (index >= size()) {
        return end();
    }
    const std::size_t branchIndex = childAt(root->ends, index);
    const Branch& branch = *root->branches[branchIndex];
    const std::size_t within = index - startOf(root->ends, branchIndex);
    const std::size_t leafIndex = childAt(branch.ends, within);
    return {&*root, branchIndex, leafIndex, within - startOf(branch.ends, leafIndex)};
}

std::optional<std::size_t> ADIFRecordList::indexOf(UUID id) const {
    if (!root->idsAscend) {
        std::size_t index = 0;
        for (const ADIFRecord& record : *this) {
            if (record.id() == id) {
                return index;
            }
            ++index;
        }
        return std::nullopt;
    }
    const auto isBelow = [&](const auto& node) { return node->leaves.back()->records.back().id() < id; };
    const auto branch = std::partition_point(root->branches.begin(), root->branches.end(), isBelow);
    if (branch == root->branches.end()) {
        return std::nullopt;
    }
    const auto& leaves = (*branch)->leaves;
    const auto leaf = std::partition_point(leaves.begin(), leaves.end(), [&](const Shared<Leaf>& node) {
        return node->records.back().id() < id;
    });
    const auto& records = (*leaf)->records;
    const auto record = std::partition_point(
        records.begin(), records.end(), [&](const ADIFRecord& candidate) { return candidate.id() < id; });
    if (record->id() != id) {
        return std::nullopt;
    }
    return startOf(root->ends, static_cast<std::size_t>(branch - root->branches.begin())) +
           startOf((*branch)->ends, static_cast<std::size_t>(leaf - leaves.begin())) +
           static_cast<std::size_t>(record - records.begin());
}

void ADIFRecordList::append(ADIFRecord record) {
    Root& own = root.own();
    own.idsAscend = own.idsAscend && (own.size() == 0 || own.last().id() < record.id());
    if (own.branches.empty() || own.branches.back()->leaves.back()->records.size() >= leafCapacity) {
        Leaf leaf;
        leaf.records.push_back(std::move(record));
        own.append(Shared<Leaf>::make(std::move(leaf)));
        return;
    }
    Branch& branch = own.branches.back().own();
    branch.leaves.back().own().records.push_back(std::move(record));
    ++branch.ends.back();
    ++own.ends.back();
}

void ADIFRecordList::replace(std::size_t index, ADIFRecord record) {
    modify(index, [&](ADIFRecord& old) { old = std::move(record); });
}

void ADIFRecordList::modify(std::size_t index, const std::function<void(ADIFRecord&)>& change) {
    Root& own = root.own();
    const std::size_t branchIndex = childAt(own.ends, index);
    Branch& branch = own.branches[branchIndex].own();
    const std::size_t within = index - startOf(own.ends, branchIndex);
    const std::size_t leafIndex = childAt(branch.ends, within);
    Leaf& leaf = branch.leaves[leafIndex].own();
    ADIFRecord& record = leaf.records[within - startOf(branch.ends, leafIndex)];
    const UUID id = record.id();
    change(record);
    own.idsAscend = own.idsAscend && record.id() == id;
}

std::size_t ADIFRecordList::removeIf(const std::function<bool(const ADIFRecord&)>& isRemoved) {
    Root kept;
    kept.idsAscend = root->idsAscend;
    std::size_t removed = 0;
    for (const Shared<Branch>& branch : root->branches) {
        Branch newBranch;
        for (const Shared<Leaf>& leaf : branch->leaves) {
            std::vector<bool> isGone;
            isGone.reserve(leaf->records.size());
            for (const ADIFRecord& record : leaf->records) {
                isGone.push_back(isRemoved(record));
            }
            const auto gone = static_cast<std::size_t>(std::ranges::count(isGone, true));
            removed += gone;
            if (gone == 0) {
                newBranch.append(leaf);
            } else if (gone < leaf->records.size()) {
                Leaf newLeaf;
                newLeaf.records.reserve(leaf->records.size() - gone);
                for (std::size_t slot = 0; slot < isGone.size(); ++slot) {
                    if (!isGone[slot]) {
                        newLeaf.records.push_back(leaf->records[slot]);
                    }
                }
                newBranch.append(Shared<Leaf>::make(std::move(newLeaf)));
            }
        }
        if (!newBranch.leaves.empty()) {
            const bool isWhole = newBranch.leaves == branch->leaves;
            kept.ends.push_back(kept.size() + newBranch.ends.back());
            kept.branches.push_back(isWhole ? branch : Shared<Branch>::make(std::move(newBranch)));
        }
    }
    if (removed > 0) {
        root = Shared<Root>::make(std::move(kept));
    }
    return removed;
}

std::size_t ADIFRecordList::transform(
    const std::function<std::optional<ADIFRecord>(const ADIFRecord&)>& change) {
    // What `change` is asked about stays as it was until all are asked.
    const Shared<Root> before = root;
    std::size_t changed = 0;
    for (std::size_t branch = 0; branch < before->branches.size(); ++branch) {
        const std::vector<Shared<Leaf>>& leaves = before->branches[branch]->leaves;
        for (std::size_t leaf = 0; leaf < leaves.size(); ++leaf) {
            const std::vector<ADIFRecord>& records = leaves[leaf]->records;
            for (std::size_t slot = 0; slot < records.size(); ++slot) {
                if (auto record = change(records[slot])) {
                    Leaf& own = root.own().branches[branch].own().leaves[leaf].own();
                    own.records[slot] = *std::move(record);
                    ++changed;
                }
            }
        }
    }
    if (changed > 0) {
        // A record given back may have any id; those of the editing operations keep theirs.
        UUID previous;
        root.own().idsAscend = std::all_of(begin(), end(), [&](const ADIFRecord& record) {
            return std::exchange(previous, record.id()) < record.id();
        });
    }
    return changed;
}

bool operator==(const ADIFRecordList& left, const ADIFRecordList& right) {
    if (left.isSameAs(right)) {
        return true;
    }
    return left.size() == right.size() && std::equal(left.begin(), left.end(), right.begin());
}

}  // namespace tallyrig
