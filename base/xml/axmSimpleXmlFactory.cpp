#include "xml/axmSimpleXmlFactory.h"

#include "xml/xxmPugixml.h"

namespace {

class Path : public axmIXmlPath {
public:
    int parse(utString const & xml, utString & error) { return xxm_parse(xml.view(), m_document, error); }

    int value(utString const & path, utString & value) const override
    {
        return xxm_first_value(m_document, path, value);
    }
    int values(utString const & path, std::vector<utString> & values) const override
    {
        return xxm_values(m_document, path, values);
    }

private:
    pugi::xml_document m_document;
};

} // namespace

std::unique_ptr<axmIXmlPath> axmSimpleXmlFactory::make_path(utString const & xml, utString & error) const
{
    auto path = std::make_unique<Path>();
    if (!path->parse(xml, error))
        return nullptr;
    return path;
}
