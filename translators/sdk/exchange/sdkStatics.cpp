#include "sdk/exchange/sdkStatics.h"

#include <Interface_Static.hxx>

#include <stdexcept>

namespace {

void require(bool set, char const * name)
{
    if (!set) {
        throw std::logic_error(std::string("the exchange setting ") + name +
                               " does not take the value given");
    }
}

} // namespace

sdkStatics::~sdkStatics()
{
    for (auto old = m_old.rbegin(); old != m_old.rend(); ++old) {
        char const * const name = old->first.c_str();
        if (auto const * text = std::get_if<std::string>(&old->second)) {
            Interface_Static::SetCVal(name, text->c_str());
        } else if (auto const * integer = std::get_if<int>(&old->second)) {
            Interface_Static::SetIVal(name, *integer);
        } else {
            Interface_Static::SetRVal(name, std::get<double>(old->second));
        }
    }
}

void sdkStatics::set(char const * name, std::string const & value)
{
    require(Interface_Static::IsPresent(name), name);
    m_old.emplace_back(name, std::string(Interface_Static::CVal(name)));
    require(Interface_Static::SetCVal(name, value.c_str()), name);
}

void sdkStatics::set(char const * name, int value)
{
    require(Interface_Static::IsPresent(name), name);
    m_old.emplace_back(name, Interface_Static::IVal(name));
    require(Interface_Static::SetIVal(name, value), name);
}

void sdkStatics::set(char const * name, double value)
{
    require(Interface_Static::IsPresent(name), name);
    m_old.emplace_back(name, Interface_Static::RVal(name));
    require(Interface_Static::SetRVal(name, value), name);
}
