#include "sdb/sdbResourceHandler.h"

#include "sdb/sdbResourceType.h"

sdbResourceHandler::sdbResourceHandler(utObserverPtr<sdbValidator> validator, utString const & name)
    : m_validator(validator), m_name(name)
{
}

int sdbResourceHandler::validate(utString const & value) const
{
    return sdbResourceType::look_up_type(m_name) && neutral_text(value);
}

int sdbResourceHandler::insert(utString const & value, vmrTableInstance & instance) const
{
    if (!sdbResourceType::look_up_type(m_name) && instance.effective_value(m_name).invalid())
        return 0;
    auto const text = neutral_text(value);
    return text ? instance.add_resource(m_name, *text) : 0;
}

utString sdbResourceHandler::display(coResourceBase const * resource)
{
    if (!resource)
        return utString::make_invalid();
    auto value = resource->value_text();
    auto const type = sdbResourceType::look_up_type(m_name);
    auto const text = type ? type->declaration().canonical(value.view()) : std::nullopt;
    if (!text)
        return value;
    // The check boxes of the options record "True" and "False", and a change that was taken back is known by
    // its text.
    if (type->kind() == vmrResourceKind::boolean)
        return *text == "true" ? "True" : "False";
    return *text;
}

void sdbResourceHandler::add_resource(coResourceBase const * resource, vmrTableInstance & instance) const
{
    if (resource)
        instance.add_as_it_stands(*resource);
}

std::optional<std::string> sdbResourceHandler::neutral_text(utString const & value) const
{
    auto const type = sdbResourceType::look_up_type(m_name);
    if (!type)
        return value.str();
    auto const & declaration = type->declaration();
    if (m_validator && type->kind() == vmrResourceKind::integer) {
        long long number = 0;
        if (!m_validator->validate_int(m_name, value) || !m_validator->read_int(value, number))
            return std::nullopt;
        return declaration.canonical_integer(number);
    }
    if (m_validator && type->kind() == vmrResourceKind::real) {
        double number = 0.0;
        if (!m_validator->validate_double(m_name, value) || !m_validator->read_double(value, number))
            return std::nullopt;
        return declaration.canonical_real(number);
    }
    return declaration.canonical(value.view());
}
