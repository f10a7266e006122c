/// \file
/// GKCNTR_API marks what the library exports. Define GKCNTR_STATIC when linking the static library.
#ifndef GK_PLATFORM_EXPORT_H
#define GK_PLATFORM_EXPORT_H

#if defined(GKCNTR_STATIC)
#define GKCNTR_API
#elif defined(_WIN32)
#if defined(GKCNTR_BUILDING)
#define GKCNTR_API __declspec(dllexport)
#else
#define GKCNTR_API __declspec(dllimport)
#endif
#else
#define GKCNTR_API __attribute__((visibility("default")))
#endif

#endif
