#include "resources/sglIllegalValueText.h"

#include "sglResourceString.h"

#include "sdb/sdbResourceType.h"

namespace {

utString line(char const * key, utString const & argument)
{
    return "\n" + sglGUIString(key, "vmrgrlib").process(ut_text_arguments(argument));
}

/// In the form in which the fields show numbers.
utString bounds(vmrResourceDeclaration const & declaration)
{
    utString text;
    if (declaration.minimum)
        text +=
            line("d.resources.messagebox::The smallest value is %s.", vmr_real_text(*declaration.minimum));
    if (declaration.maximum)
        text += line("d.resources.messagebox::The largest value is %s.", vmr_real_text(*declaration.maximum));
    return text;
}

} // namespace

utString sgl_illegal_value_text(sglResourceDetails const & resource)
{
    utString const text = sglResourceString("vmrgrlib", 1210) + "\n";
    utString const field = resource.short_description();
    auto const * const type = sdbResourceType::look_up_type(resource.name());
    if (!type)
        return text + "\n" + field;
    switch (type->kind()) {
    case vmrResourceKind::integer:
        return text + line("d.resources.messagebox::\"%s\" takes a whole number.", field) +
               bounds(type->declaration());
    case vmrResourceKind::real:
        return text + line("d.resources.messagebox::\"%s\" takes a number.", field) +
               bounds(type->declaration());
    default:
        return text + line("d.resources.messagebox::\"%s\" must not be empty.", field);
    }
}
