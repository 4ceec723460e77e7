// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <gio/gio.h>

namespace vell {

template <auto Free>
struct GlibFree {
    template <class Thing>
    void operator()(Thing* thing) const {
        Free(thing);
    }
};

using VariantPtr = std::unique_ptr<GVariant, GlibFree<g_variant_unref>>;
using ErrorPtr = std::unique_ptr<GError, GlibFree<g_error_free>>;
using CharsPtr = std::unique_ptr<gchar, GlibFree<g_free>>;
using SourcePtr = std::unique_ptr<GSource, GlibFree<g_source_unref>>;
using ContextPtr = std::unique_ptr<GMainContext, GlibFree<g_main_context_unref>>;
template <class Object>
using ObjectPtr = std::unique_ptr<Object, GlibFree<g_object_unref>>;

}  // namespace vell
