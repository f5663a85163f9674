#include "pru/pruProductInfo.h"

#include <filesystem>
#include <fstream>
#include <utility>

#include <boost/property_tree/ini_parser.hpp>
#include <boost/property_tree/ptree.hpp>

namespace {

pruProductDataStatus read_fields(std::string const & path, std::map<utString, utString> & fields)
{
    std::error_code ignored;
    std::ifstream file;
    if (std::filesystem::is_regular_file(path, ignored))
        file.open(path);
    if (!file.is_open())
        return pruProductDataUnreadable;
    boost::property_tree::ptree tree;
    try {
        boost::property_tree::read_ini(file, tree);
    } catch (boost::property_tree::ini_parser_error const &) {
        return pruProductDataMalformed;
    }
    for (auto const & [name, node] : tree)
        fields[utString(name)] = utString(node.data());
    return pruProductDataRead;
}

} // namespace

pruProductDataStatus pruProductInfo::read_product_data(utString const & key, utString const & path)
{
    m_fields.clear();
    std::map<utString, utString> fields;
    auto const status = read_fields(path.str(), fields);
    if (status != pruProductDataRead)
        return status;
    auto const found = fields.find("key");
    if (found == fields.end())
        return pruProductDataNoKey;
    if (found->second != key)
        return pruProductDataWrongKey;
    m_fields = std::move(fields);
    return pruProductDataRead;
}

utString pruProductInfo::short_name() const
{
    auto const name = value("short_name");
    return name.invalid() ? value(pruPRODUCT_NAME) : name;
}

utString pruProductInfo::long_name() const
{
    auto const name = value("long_name");
    return name.invalid() ? short_name() : name;
}

utString pruProductInfo::value(utString const & name) const
{
    auto const found = m_fields.find(name);
    return found == m_fields.end() ? utString::make_invalid() : found->second;
}
