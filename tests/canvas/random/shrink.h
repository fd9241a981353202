#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <vector>

/// The shortest list to be had by leaving out stretches of `items`, ever smaller ones, as long as
/// what is left still fails.
template <typename Item, typename Fails>
std::vector<Item> shrunk(std::vector<Item> items, Fails fails)
{
    std::size_t stretch = items.size();
    while (stretch > 0) {
        bool shortened = false;
        for (std::size_t from = 0; from < items.size();) {
            const std::size_t to = std::min(from + stretch, items.size());
            std::vector<Item> rest(items.begin(), std::next(items.begin(), std::ptrdiff_t(from)));
            rest.insert(rest.end(), std::next(items.begin(), std::ptrdiff_t(to)), items.end());
            if (fails(rest)) {
                items = std::move(rest);
                shortened = true;
            } else {
                from = to;
            }
        }
        if (!shortened || stretch > 1)
            stretch /= 2;
    }
    return items;
}
