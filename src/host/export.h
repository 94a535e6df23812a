// The mark of what libkvhost offers to both sides of the loader.
#pragma once

#if defined(_WIN32)
#if defined(KVHOST_BUILD)
#define KVHOST_API __declspec(dllexport)
#else
#define KVHOST_API __declspec(dllimport)
#endif
#else
#define KVHOST_API __attribute__((visibility("default")))
#endif
