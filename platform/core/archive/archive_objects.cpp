#include "platform/core/archive/archive.h"
#include "platform/core/archive/archive_references.h"
#include "platform/core/archive/utf8.h"
#include "platform/core/object/instantiator.h"

#include <typeinfo>
#include <utility>

namespace {

// The name was read from untrusted bytes: enough of it to recognise, no more.
constexpr std::size_t shownOfName = 64;

gkArchive::UnknownType unknownType(const std::string& name) {
    std::wstring wide;
    gk_Utf8::widen(name, wide);
    return gkArchive::UnknownType((L"unknown class: " + wide.substr(0, shownOfName)).c_str());
}

} // namespace

void gkArchive::writeReference(const gkPersistent* object, const gkRepBase* rep) {
    require(false);
    if (!object) {
        putNumber(0, 4);
        return;
    }
    const std::uint32_t known = references_->numberOf(*object);
    if (known == 0) {
        writeNew(*object, rep, false);
        return;
    }
    if (references_->isOwned(known)) throw BadReference(L"an object is written as owned and as shared");
    references_->refer(known);
    putNumber(known, 4);
}

void gkArchive::writeObject(const gkPersistent* object) {
    require(false);
    if (!object) {
        putNumber(0, 4);
        return;
    }
    if (references_->numberOf(*object) != 0) throw BadReference(L"an object is written as owned and as shared");
    writeNew(*object, nullptr, true);
}

void gkArchive::writeNew(const gkPersistent& object, const gkRepBase* rep, bool owned) {
    const gk_Instantiator* const type = gk_Instantiator::find(typeid(object));
    if (!type) throw UnknownType(L"a class to be written is not registered");
    const std::uint32_t number = references_->nextNumber();
    gk_ArchiveOperation operation(*this);
    if (owned) {
        references_->addOwned(object);
    } else {
        references_->addShared(object, rep);
    }
    putNumber(number, 4);
    putText(type->portableName());
    {
        const gk_ArchiveReferences::Passing passing(*references_, number, object);
        // Not const, because the same operation reads; when saving it only looks.
        const_cast<gkPersistent&>(object).dispatchSerialize(*this);
    }
    if (owned) references_->forgetOwned(object);
    operation.complete();
}

gkPersistent* gkArchive::readReference(bool (*fits)(gkPersistent*)) {
    require(true);
    const std::uint64_t number = getNumber(4);
    if (number == 0) return nullptr;
    const std::uint64_t known = references_->size();
    if (number > known + 1) throw BadReference(L"an object number is out of sequence");
    if (number == known + 1) return readNew(fits);
    gkPersistent* const object = references_->object(static_cast<std::uint32_t>(number));
    if (!object) throw BadReference(L"the object referred to belongs to somebody else");
    if (!fits(object)) throw WrongType();
    references_->refer(static_cast<std::uint32_t>(number));
    return object;
}

gkPersistent* gkArchive::readObject() {
    require(true);
    const std::uint64_t number = getNumber(4);
    if (number == 0) return nullptr;
    if (number != references_->size() + 1) throw BadReference(L"an owned object has been read before");
    gk_ArchiveOperation operation(*this);
    readNew(nullptr);
    gkPersistent* const object = references_->handOut(static_cast<std::uint32_t>(number));
    if (!object) throw BadReference(L"an owned object is held by a handle");
    operation.complete();
    return object;
}

gkPersistent* gkArchive::readNew(bool (*fits)(gkPersistent*)) {
    const std::uint32_t number = references_->nextNumber();
    const std::string name = getText();
    const gk_Instantiator* const type = gk_Instantiator::find(name);
    if (!type) throw unknownType(name);
    std::unique_ptr<gkPersistent> made(type->create());
    if (!made) throw unknownType(name);
    gkPersistent* const object = made.get();
    gkRepBase* const rep = dynamic_cast<gkRepBase*>(object);
    // Before the record is read: only a counted object can be shared.
    if (fits && !(rep && fits(object))) throw WrongType();
    gk_ArchiveOperation operation(*this);
    references_->add(std::move(made), rep);
    {
        const gk_ArchiveReferences::Passing passing(*references_, number, *object);
        object->dispatchSerialize(*this);
    }
    operation.complete();
    return object;
}
