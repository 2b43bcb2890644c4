#pragma once

#include "platform/runtime/Error.h"

#include <memory>
#include <utility>
#include <vector>

namespace runtime {

/// An ordered, 1-based collection of shared objects. Positions outside 1..Count() raise error 9.
template <class T> class Collection {
public:
    using Pointer = std::shared_ptr<T>;

    int Count() const { return static_cast<int>(items_.size()); }

    Pointer Item(int position) const {
        check(position, Count());
        return items_[static_cast<std::size_t>(position - 1)];
    }

    /// Adds at the end.
    void Add(Pointer item) { items_.push_back(std::move(item)); }

    /// Adds in front of the item at `before`, which must exist.
    void Add(Pointer item, int before) {
        check(before, Count());
        items_.insert(items_.begin() + (before - 1), std::move(item));
    }

    void Remove(int position) {
        check(position, Count());
        items_.erase(items_.begin() + (position - 1));
    }

    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

private:
    static void check(int position, int last) {
        if (position < 1 || position > last)
            raise(SubscriptOutOfRange);
    }

    std::vector<Pointer> items_;
};

} // namespace runtime
