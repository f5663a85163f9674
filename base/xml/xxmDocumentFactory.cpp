#include "xml/xxmDocumentFactory.h"

#include <algorithm>
#include <sstream>

#include "ap/apPosixOperations.h"
#include "xml/xxmPugixml.h"

namespace {

/// Names of ASCII letters, digits and "_", "-", ".", ":"; bytes of other characters are let through.
bool is_name(std::string_view text)
{
    auto const starts = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
               (static_cast<unsigned char>(c) & 0x80);
    };
    auto const continues = [&starts](char c) {
        return starts(c) || (c >= '0' && c <= '9') || c == '-' || c == '.' || c == ':';
    };
    return !text.empty() && starts(text.front()) && std::all_of(text.begin(), text.end(), continues);
}

class Document : public axmDocument {
public:
    pugi::xml_document & content() { return m_document; }

    int value(utString const & path, utString & value) const override
    {
        return xxm_first_value(m_document, path, value);
    }

    int values(utString const & path, std::vector<utString> & values) const override
    {
        return xxm_values(m_document, path, values);
    }

    int set_value(utString const & path, utString const & value) override
    {
        auto const found = first(path);
        if (found.attribute())
            return found.attribute().set_value(value.c_str());
        return found.node() && found.node().text().set(value.c_str());
    }

    int add_element(utString const & parent, utString const & name, utString const & text) override
    {
        auto const found = first(parent);
        if (!found.node() || !is_name(name.view()))
            return 0;
        auto child = found.node().append_child(name.c_str());
        if (child && !text.empty())
            child.text().set(text.c_str());
        return !child.empty();
    }

    int set_attribute(utString const & element, utString const & name, utString const & value) override
    {
        auto const node = first(element).node();
        if (!node || !is_name(name.view()))
            return 0;
        auto attribute = node.attribute(name.c_str());
        if (!attribute)
            attribute = pugi::xml_node(node).append_attribute(name.c_str());
        return attribute.set_value(value.c_str());
    }

    utString text() const override
    {
        std::ostringstream out;
        m_document.save(out, "  ", pugi::format_default, pugi::encoding_utf8);
        return out.str();
    }

    int save(apPathName const & file, utString & error) const override
    {
        auto const result = apPosixFileOperations().replace_file(file, text().view());
        if (!result)
            error = utString(file.utf8() + ": ") + result.message();
        return result ? 1 : 0;
    }

private:
    pugi::xpath_node first(utString const & path) const
    {
        pugi::xpath_node_set nodes;
        return xxm_select(m_document, path, nodes) ? nodes.first() : pugi::xpath_node();
    }

    pugi::xml_document m_document;
};

} // namespace

std::unique_ptr<axmDocument> xxmDocumentFactory::make_document(utString const & root_element) const
{
    if (!is_name(root_element.view()))
        return nullptr;
    auto document = std::make_unique<Document>();
    document->content().append_child(root_element.c_str());
    return document;
}

std::unique_ptr<axmDocument> xxmDocumentFactory::load_text(utString const & xml, utString & error) const
{
    auto document = std::make_unique<Document>();
    if (!xxm_parse(xml.view(), document->content(), error))
        return nullptr;
    return document;
}

std::unique_ptr<axmDocument> xxmDocumentFactory::load_file(apPathName const & file, utString & error) const
{
    std::string content;
    utString reason;
    if (auto const result = apPosixFileOperations().read_file(file, content); !result)
        reason = result.message();
    else if (auto document = load_text(content, reason))
        return document;
    error = utString(file.utf8() + ": ") + reason;
    return nullptr;
}
