#include "sdk/sdkStated.h"

#include <Standard_GUID.hxx>
#include <TDataStd_Integer.hxx>

namespace {

// At the document and not at the parts, which are taken apart and replaced on the way to a writer.
Standard_GUID const & stated_id()
{
    static Standard_GUID const id("b0b6a1a4-6c0e-4a39-9b1c-52d1f0c1e7a3");
    return id;
}

} // namespace

void sdk_add_stated(sdkDocument const & document, std::int64_t products)
{
    if (products > 0) {
        TDataStd_Integer::Set(document.handle()->Main(), stated_id(), int(sdk_stated(document) + products));
    }
}

std::int64_t sdk_stated(sdkDocument const & document)
{
    Handle(TDataStd_Integer) number;
    return document.handle()->Main().FindAttribute(stated_id(), number) ? number->Get() : 0;
}
