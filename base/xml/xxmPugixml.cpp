#include "xml/xxmPugixml.h"

#include <algorithm>
#include <string>

namespace {

utString value_of(pugi::xpath_node const & found)
{
    return found.attribute() ? found.attribute().value() : found.node().text().get();
}

} // namespace

int xxm_parse(std::string_view xml, pugi::xml_document & document, utString & error)
{
    auto const result =
        document.load_buffer(xml.data(), xml.size(), pugi::parse_default, pugi::encoding_auto);
    if (result)
        return 1;
    auto const place = xml.substr(0, static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0)));
    auto const line = 1 + std::count(place.begin(), place.end(), '\n');
    error = utString("line " + std::to_string(line) + ": " + result.description());
    return 0;
}

int xxm_select(pugi::xml_node const & root, utString const & path, pugi::xpath_node_set & nodes)
{
    try {
        nodes = root.select_nodes(path.c_str());
        nodes.sort();
        return 1;
    } catch (pugi::xpath_exception const &) {
        return 0;
    }
}

int xxm_values(pugi::xml_node const & root, utString const & path, std::vector<utString> & values)
{
    values.clear();
    try {
        pugi::xpath_query const query(path.c_str());
        if (query.return_type() != pugi::xpath_type_node_set) {
            values.push_back(query.evaluate_string(root));
            return 1;
        }
    } catch (pugi::xpath_exception const &) {
        return 0;
    }
    pugi::xpath_node_set nodes;
    if (!xxm_select(root, path, nodes))
        return 0;
    for (auto const & node : nodes)
        values.push_back(value_of(node));
    return 1;
}

int xxm_first_value(pugi::xml_node const & root, utString const & path, utString & value)
{
    std::vector<utString> values;
    if (!xxm_values(root, path, values) || values.empty())
        return 0;
    value = values.front();
    return 1;
}
