#include "sglVariableSubstituter.h"

#include "sglApp.h"

namespace {

utStringutStringcoTable const * product_variables()
{
    static auto const * const table = [] {
        auto const & app = sglApp::app();
        auto * const variables = new utStringutStringcoTable(4, 50);
        (*variables)["PROGRAM-NAME"] = app.application_name_no_version();
        (*variables)["COMPANY-NAME"] = app.company_name();
        (*variables)["COMMON-COMPANY-NAME"] = app.common_company_name();
        (*variables)["COMMON-PROGRAM-NAME"] = app.common_application_name();
        return variables;
    }();
    return table;
}

} // namespace

sglVariableSubstituter::sglVariableSubstituter() : m_table(nullptr) {}

utString sglVariableSubstituter::substitute(utString const & text) const
{
    if (text.locate_substring("[[") < 0)
        return text;
    utString result = text;
    for (auto const & [name, value] : m_table ? *m_table : *product_variables()) {
        utString const pattern = "[[" + name + "]]";
        for (int at = text.locate_substring(pattern); at >= 0;
             at = result.locate_substring(pattern, at + value.length())) {
            result.remove(at, pattern.length());
            result.insert(at, value);
        }
    }
    return result;
}
