#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

struct XcbFree {
    void operator()(void *memory) const { std::free(memory); }
};

/// Owns what libxcb allocates with malloc: replies, events and errors.
template <typename T> using XcbPtr = std::unique_ptr<T, XcbFree>;
