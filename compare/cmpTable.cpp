#include "compare/cmpTable.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <map>

#include "compare/cmpColumns.h"
#include "compare/cmpTexts.h"

namespace {

using nlohmann::json;
using Rows = std::vector<std::vector<std::string>>;

constexpr std::size_t line_width = 80;
constexpr std::size_t longest_path = 60;
constexpr std::size_t longest_name = 26;
constexpr std::size_t most_parts = 20;
constexpr std::size_t most_of_a_kind = 10;

std::string number(double value, char const * form = "%.9g")
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), form, value + 0.0);
    return text.data();
}

/// How much more B has; nothing where the two are alike.
std::string change(double a, double b)
{
    return a == b ? ""
                  : number(b - a, std::abs(b - a) < 1.0e9 && b - a == std::floor(b - a) ? "%+.0f" : "%+.3g");
}

std::vector<std::string> amounts(std::string const & label, double a, double b)
{
    return {label, number(a), number(b), change(a, b)};
}

/// Most models have no triangles or curves, and what is only counted has no size.
bool is_always_shown(std::string_view field)
{
    return field == "solids" || field == "shells" || field == "faces" || field == "curves" ||
           field == "points";
}

/// The table in the making.
class Table {
public:
    Table(cmpReport const & report, bool all, cmpTexts const & texts)
        : m_report(report), m_all(all), m_texts(texts)
    {
    }

    std::string text()
    {
        std::string const files =
            cmp_columns({{"A", cmp_cut(m_report.a.file, longest_path), m_report.a.format},
                         {"B", cmp_cut(m_report.b.file, longest_path), m_report.b.format}});
        add(files);
        add(cmp_columns(inventory()));
        if (auto const rows = parts(); rows.size() > 1)
            add(cmp_columns(rows) + rest_of_parts());
        if (auto const text = findings(); !text.empty())
            add(text);
        if (m_report.compared())
            add(last_line());
        return m_text;
    }

private:
    void add(std::string const & block) { m_text += (m_text.empty() ? "" : "\n") + block; }

    Rows inventory() const
    {
        auto const & a = m_report.a.inventory;
        auto const & b = m_report.b.inventory;
        Rows rows = {{"", "A", "B", m_texts("compare::difference")}};
        struct Count {
            char const * field;
            std::string label;
        };
        Count const counts[] = {
            {"solids", m_texts("compare::solids")},      {"shells", m_texts("compare::shells")},
            {"faces", m_texts("compare::faces")},        {"curves", m_texts("compare::curves")},
            {"points", m_texts("compare::points")},      {"triangles", m_texts("compare::triangles")},
            {"volume", m_texts("compare::volume, mm3")}, {"area", m_texts("compare::area, mm2")},
            {"length", m_texts("compare::length, mm")}};
        for (auto const & [field, label] : counts) {
            double const in_a = a.value(field, 0.0);
            double const in_b = b.value(field, 0.0);
            if (is_always_shown(field) || in_a != 0 || in_b != 0)
                rows.push_back(amounts(label, in_a, in_b));
        }
        for (int axis = 0; axis < 3 && !m_report.counts_only; ++axis)
            rows.push_back(box(axis, a, b));
        return rows;
    }

    std::vector<std::string> box(int axis, json const & a, json const & b) const
    {
        auto const range = [axis](json const & side) -> std::string {
            auto const corners = side.find("box");
            if (corners == side.end() || !corners->is_array())
                return "";
            auto const at = static_cast<std::size_t>(axis);
            return number((*corners)[at], "%.6g") + " .. " + number((*corners)[at + 3], "%.6g");
        };
        auto const in_a = range(a);
        auto const in_b = range(b);
        std::string difference;
        if (in_a != in_b && !in_a.empty() && !in_b.empty()) {
            auto const at = static_cast<std::size_t>(axis);
            double const low = b["box"][at].get<double>() - a["box"][at].get<double>();
            double const high = b["box"][at + 3].get<double>() - a["box"][at + 3].get<double>();
            difference = number(std::abs(low) > std::abs(high) ? low : high, "%+.3g");
        }
        return {m_texts("compare::box, %s", std::string(1, static_cast<char>('x' + axis))), in_a, in_b,
                difference};
    }

    Rows parts()
    {
        Rows rows = {{m_texts("compare::part"), "", "A", "B", m_texts("compare::difference")}};
        for (auto const & pair : m_report.pairs) {
            if (pair.value("same", false) && !m_all)
                continue;
            ++m_parts;
            if (m_all || m_parts <= most_parts)
                rows.push_back(part(pair));
        }
        return rows;
    }

    std::vector<std::string> part(json const & pair) const
    {
        auto const kind = pair.value("kind", "");
        auto const name = pair.value("part", "");
        bool const solid = kind == "solid";
        char const * const field = solid ? "volume" : kind == "curve" ? "length" : "area";
        std::string const unit = solid ? "mm3" : kind == "curve" ? "mm" : "mm2";
        auto const amount = [&](char const * side) {
            auto const & body = pair[side];
            return body.is_null() ? std::string("-") : number(body.value(field, 0.0)) + " " + unit;
        };
        std::string difference;
        if (!pair["a"].is_null() && !pair["b"].is_null()) {
            difference = change(pair["a"].value(field, 0.0), pair["b"].value(field, 0.0));
            if (!pair.value("same", false) && difference.empty())
                difference = m_texts("compare::see below");
        }
        return {cmp_cut(name.empty() ? pair.value("place", "") : name, longest_name), kind_text(kind),
                amount("a"), amount("b"), difference};
    }

    std::string kind_text(std::string const & kind) const
    {
        if (kind == "solid")
            return m_texts("compare::solid");
        if (kind == "shell")
            return m_texts("compare::shell");
        if (kind == "face")
            return m_texts("compare::face");
        if (kind == "mesh")
            return m_texts("compare::mesh");
        return kind == "curve" ? m_texts("compare::curve") : m_texts("compare::point");
    }

    std::string rest_of_parts() const
    {
        if (m_all || m_parts <= most_parts)
            return {};
        return m_texts("compare::%d more parts differ; --all or --json shows them", m_parts - most_parts) +
               "\n";
    }

    /// Losses of the readers and differences; notes only when all is wanted.
    std::string findings() const
    {
        std::string text;
        for (auto const * side : {&m_report.a, &m_report.b})
            text += sentences(side->findings, (side == &m_report.a ? "A: " : "B: "));
        return text + sentences(m_report.findings, "");
    }

    std::string sentences(std::vector<cmpFinding> const & findings, std::string const & before) const
    {
        std::string text;
        std::map<std::string, std::size_t> told;
        for (auto const & finding : findings) {
            if ((m_all || cmp_is_difference(finding)) && ++told[finding.kind] <= most_of_a_kind)
                text += cmp_wrap(before + shortened(finding), line_width) + "\n";
        }
        for (auto const & [kind, count] : told)
            if (count > most_of_a_kind)
                text += m_texts("compare::%d more of the kind \"%s\"", count - most_of_a_kind, kind) + "\n";
        return text;
    }

    static std::string shortened(cmpFinding const & finding)
    {
        auto text = finding.text;
        auto const cut = cmp_cut(finding.part, 2 * longest_name);
        if (cut == finding.part)
            return text;
        for (auto at = text.find(finding.part); at != std::string::npos;
             at = text.find(finding.part, at + cut.size()))
            text.replace(at, finding.part.size(), cut);
        return text;
    }

    std::string last_line() const
    {
        if (m_report.verdict == sdbVerdictVerified)
            return (m_report.counts_only ? m_texts("compare::Same by counts") : m_texts("compare::Same")) +
                   "\n";
        auto const count = m_report.differences();
        return (count == 1 ? m_texts("compare::Different: one difference")
                           : m_texts("compare::Different: %d differences", count)) +
               "\n";
    }

    cmpReport const & m_report;
    bool m_all;
    cmpTexts const & m_texts;
    std::size_t m_parts = 0;
    std::string m_text;
};

} // namespace

std::string cmp_table(cmpReport const & report, bool all, cmpTexts const & texts)
{
    return Table(report, all, texts).text();
}
