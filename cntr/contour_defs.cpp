#include "cntr/contour_defs.h"

#include "platform/core/archive/archive.h"
#include "platform/core/object/instantiator.h"
#include "platform/core/object/rethrow.h"

#include <typeinfo>

gkContourDefs::Errors::Errors(const std::wstring& message) : gkExceptionWithString(message.c_str()) {}

gkContourDefs::Errors::Errors(const Errors&) = default;

gkContourDefs::Errors& gkContourDefs::Errors::operator=(const Errors&) = default;

gkContourDefs::Errors::~Errors() = default;

void gkContourDefs::Errors::dispatchSerialize(gkArchive& archive) {
    if (haveVisited(archive)) return;
    unsigned char version = 0;
    archive || version;
    gkContourDefs::Errors::serialize_(archive, version);
    setVisited(archive);
}

void gkContourDefs::Errors::serialize_(gkArchive& archive, unsigned char version) {
    if (version != 0) throw gkArchive::UnknownVersion("gkContourDefs::Errors", 0);
    gkException::dispatchSerialize(archive);
}

// The four concrete errors differ in name and number only. Each archive level must call its own serialize_, so
// the bodies are written once here and stamped out per class.
#define GK_CONTOUR_ERROR(Name, number)                                                                         \
    gk_Instantiator gkContourDefs::Name::sExemplar(typeid(gkContourDefs::Name), "gkContourDefs::" #Name,       \
                                                   &gkContourDefs::Name::make);                                \
    gkContourDefs::Name::Name(const std::wstring& message) : Errors(message) {}                                \
    gkContourDefs::Name::Name(const Name&) = default;                                                          \
    gkContourDefs::Name& gkContourDefs::Name::operator=(const Name&) = default;                                \
    gkContourDefs::Name::~Name() = default;                                                                    \
    long gkContourDefs::Name::errorNumber() const { return number; }                                           \
    void gkContourDefs::Name::suicideAndRethrow() { gk_FreeAndThrow(this); }                                   \
    gkPersistent* gkContourDefs::Name::make() { return new Name(std::wstring()); }                             \
    void gkContourDefs::Name::dispatchSerialize(gkArchive& archive) {                                          \
        if (haveVisited(archive)) return;                                                                      \
        unsigned char version = 0;                                                                             \
        archive || version;                                                                                    \
        gkContourDefs::Name::serialize_(archive, version);                                                     \
        setVisited(archive);                                                                                   \
    }                                                                                                          \
    void gkContourDefs::Name::serialize_(gkArchive& archive, unsigned char version) {                          \
        if (version != 0) throw gkArchive::UnknownVersion("gkContourDefs::" #Name, 0);                         \
        Errors::dispatchSerialize(archive);                                                                    \
    }

GK_CONTOUR_ERROR(EmptyContour, 0x10004680)
GK_CONTOUR_ERROR(EmptyRegionSet, 0x10004682)
GK_CONTOUR_ERROR(BadParams, 0x10004683)
GK_CONTOUR_ERROR(RegionCannotBeSetOpen, 0x10004684)

#undef GK_CONTOUR_ERROR
