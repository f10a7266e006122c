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

// The marks of a class template's instantiation, at its extern declaration and at its definition. One compiler
// takes dllexport only at the definition, the others only where they first see the instantiation.
#if defined(_MSC_VER) && defined(GKCNTR_BUILDING) && !defined(GKCNTR_STATIC)
#define GKCNTR_TEMPLATE_API
#define GKCNTR_TEMPLATE_EXPORT __declspec(dllexport)
#else
#define GKCNTR_TEMPLATE_API GKCNTR_API
#define GKCNTR_TEMPLATE_EXPORT
#endif

#endif
