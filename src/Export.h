#pragma once
// What the component's shared libraries show to hosts. Everything else is
// built with hidden visibility and stays inside the library.

#if defined(__GNUC__) || defined(__clang__)
#define QV_EXPORT __attribute__((visibility("default")))
#else
#define QV_EXPORT
#endif
