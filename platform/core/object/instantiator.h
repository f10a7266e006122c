/// \file
/// Registration of classes that an archive can create by name.
#ifndef GK_PLATFORM_CORE_OBJECT_INSTANTIATOR_H
#define GK_PLATFORM_CORE_OBJECT_INSTANTIATOR_H

#include "platform/export.h"

#include <string>
#include <typeinfo>

class gkPersistent;

/// While it exists, archives know a class under a portable name. Make it a static object, so that it registers
/// when the library is loaded and withdraws when it is unloaded:
///
///     gk_Instantiator gkContour::sExemplar(typeid(gkContour), "gkContour", &gkContour::make);
///
/// The name stands in the archive's bytes, so it is chosen, not taken from the compiler, and stays for ever.
/// When two classes are registered under one name, or one class twice, the later registration counts while it
/// exists. Not for use from several threads: registrations are made and withdrawn at load and unload.
class GKCNTR_API gk_Instantiator {
public:
    using Maker = gkPersistent* (*)();

    /// `type` and `portableName` are kept by address. `make` returns a new object of the class.
    gk_Instantiator(const std::type_info& type, const char* portableName, Maker make);
    ~gk_Instantiator();
    gk_Instantiator(const gk_Instantiator&) = delete;
    gk_Instantiator& operator=(const gk_Instantiator&) = delete;

    const char* portableName() const { return portableName_; }
    /// A new object; the caller owns it.
    gkPersistent* create() const { return make_(); }

    /// The registration under this name, or null.
    static const gk_Instantiator* find(const std::string& portableName);
    /// The registration of exactly this class, or null.
    static const gk_Instantiator* find(const std::type_info& type);

private:
    const std::type_info* type_;
    const char* portableName_;
    Maker make_;
};

#endif
