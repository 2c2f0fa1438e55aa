#pragma once
// What the component's shared libraries show to hosts. Everything else is
// built with hidden visibility and stays inside the library.

#if defined(__GNUC__) || defined(__clang__)
#define QV_EXPORT __attribute__((visibility("default")))
// A nested class of an exported class is exported too unless marked.
#define QV_HIDDEN __attribute__((visibility("hidden")))
#else
#define QV_EXPORT
#define QV_HIDDEN
#endif
