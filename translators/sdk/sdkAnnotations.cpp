#include "sdk/sdkAnnotations.h"

#include <Standard_GUID.hxx>
#include <TDF_Attribute.hxx>
#include <TDF_RelocationTable.hxx>

#include <utility>

// Host and modules have this class each for itself, so it has one name and is told by its number.
class sdkAnnotationsAttribute : public TDF_Attribute {
public:
    static Standard_GUID const & id()
    {
        static Standard_GUID const id("5b1f3a0e-8d0c-4c3f-9d8e-7f64a1f0b2c9");
        return id;
    }

    Standard_GUID const & ID() const override { return id(); }
    Handle(TDF_Attribute) NewEmpty() const override { return new sdkAnnotationsAttribute; }
    void Restore(Handle(TDF_Attribute) const & other) override
    {
        sets = static_cast<sdkAnnotationsAttribute const &>(*other).sets;
    }
    void Paste(Handle(TDF_Attribute) const & into, Handle(TDF_RelocationTable) const &) const override
    {
        static_cast<sdkAnnotationsAttribute &>(*into).sets = sets;
    }

    std::vector<sdkAnnotationSet> sets;
};

namespace {

sdkAnnotationsAttribute * find(sdkDocument const & document)
{
    Handle(TDF_Attribute) found;
    return document.handle()->Main().FindAttribute(sdkAnnotationsAttribute::id(), found)
               ? static_cast<sdkAnnotationsAttribute *>(found.get())
               : nullptr;
}

} // namespace

void sdk_add_annotations(sdkDocument const & document, sdkAnnotationSet set)
{
    auto * attribute = find(document);
    if (attribute == nullptr) {
        attribute = new sdkAnnotationsAttribute;
        document.handle()->Main().AddAttribute(attribute);
    }
    attribute->sets.push_back(std::move(set));
}

std::vector<sdkAnnotationSet> const & sdk_annotations(sdkDocument const & document)
{
    static std::vector<sdkAnnotationSet> const none;
    auto const * attribute = find(document);
    return attribute == nullptr ? none : attribute->sets;
}
