#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json_fwd.hpp>

enum class vmrResourceKind { boolean, integer, real, text, choice };

/// What a translator's manifest says of one resource: its name, its type, the values that are legal for it
/// and the value that it has when nobody sets it.
///
/// Values travel as text in one neutral form, which no language or locale changes: "true" and "false",
/// integers in decimal digits, reals in the shortest form that reads back as the same number, with ".",
/// choices as declared.
struct vmrResourceDeclaration {
    std::string name;
    vmrResourceKind kind = vmrResourceKind::text;
    std::string default_value;     ///< in the neutral form
    std::optional<double> minimum; ///< of integers and reals; the bound itself is legal
    std::optional<double> maximum;
    std::vector<std::string> choices; ///< of a choice, in the order in which a user sees them

    /// The neutral form of `text`, or nothing when that is no legal value. Blanks around booleans, numbers
    /// and choices do not count, nor does the case of booleans and choices.
    std::optional<std::string> canonical(std::string_view text) const;
    /// The neutral form of a number, or nothing when it lies out of range or is no number.
    std::optional<std::string> canonical_integer(long long value) const;
    std::optional<std::string> canonical_real(double value) const;

    bool operator==(vmrResourceDeclaration const &) const = default;
};

/// Numbers in the neutral form, alone in the text but for blanks; nothing when the text is anything else,
/// when the number does not fit, and for infinities.
std::optional<long long> vmr_read_integer(std::string_view text);
std::optional<double> vmr_read_real(std::string_view text);
std::string vmr_real_text(double value);

/// The word for a kind in a manifest: "boolean", "integer", "real", "text" or "choice".
char const * vmr_resource_kind_word(vmrResourceKind kind);

/// Reads an element of "resources" of a manifest, whose form docs/host-protocol.md describes. False when it
/// cannot be used; `problem` then names the resource and says what is wrong.
bool vmr_read_resource_declaration(nlohmann::json const & value, vmrResourceDeclaration & declaration,
                                   std::string & problem);

/// The same form back again.
nlohmann::json vmr_write_resource_declaration(vmrResourceDeclaration const & declaration);
