// The mark of what libkvembedded offers to the program and the tests.
#pragma once

#if defined(_WIN32)
#if defined(KVEMBEDDED_BUILD)
#define KVEMBEDDED_API __declspec(dllexport)
#else
#define KVEMBEDDED_API __declspec(dllimport)
#endif
#else
#define KVEMBEDDED_API __attribute__((visibility("default")))
#endif
