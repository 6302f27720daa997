#pragma once

#include <arv.h>
#include <memory>

struct GObjectUnref
{
    void operator()(void *object) const { g_object_unref(object); }
};

/// Owns one reference to a GObject.
template <typename Object>
using GObjectPointer = std::unique_ptr<Object, GObjectUnref>;
