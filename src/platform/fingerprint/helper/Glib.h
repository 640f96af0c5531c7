// Owners for what libfprint and GLib hand out.
#pragma once

#include <memory>

// A word of Qt's that GLib has as a name.
#pragma push_macro("signals")
#undef signals
#include <fprint.h>
#pragma pop_macro("signals")

namespace velcro::fingerprint {

struct Unref
{
    void operator()(gpointer object) const { g_object_unref(object); }
    void operator()(GPtrArray* array) const { g_ptr_array_unref(array); }
    void operator()(GMainLoop* loop) const { g_main_loop_unref(loop); }
    void operator()(GError* error) const { g_error_free(error); }
};

template <typename Object>
using Owned = std::unique_ptr<Object, Unref>;

/// Where a GLib call leaves its error; reads as a text.
class Failure
{
public:
    ~Failure() { g_clear_error(&error_); }
    Failure() = default;
    Failure(const Failure&) = delete;
    Failure& operator=(const Failure&) = delete;

    GError** out() { return &error_; }
    const GError* get() const { return error_; }
    const char* text() const { return error_ != nullptr ? error_->message : ""; }

private:
    GError* error_ = nullptr;
};

} // namespace velcro::fingerprint
