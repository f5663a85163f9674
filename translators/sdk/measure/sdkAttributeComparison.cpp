#include "sdk/measure/sdkAttributeComparison.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace {

std::string in_ascii(std::string const & name)
{
    std::string ascii;
    for (unsigned char const byte : name) {
        // One underscore for each character, however many bytes it has.
        if (byte < 0x80) {
            ascii += static_cast<char>(byte);
        } else if (byte >= 0xC0) {
            ascii += '_';
        }
    }
    return ascii;
}

std::string opaque(std::string const & colour)
{
    return colour.size() == 9 ? colour.substr(0, 7) + "ff" : colour;
}

std::map<std::string, double> opaque(std::map<std::string, double> const & colours)
{
    std::map<std::string, double> result;
    for (auto const & [colour, share] : colours) {
        result[opaque(colour)] += share;
    }
    return result;
}

bool near_colour(std::string const & a, std::string const & b)
{
    if (a == b || a.size() != b.size() || a.empty()) {
        return a == b;
    }
    // Rounding may take a step of 1/255.
    for (std::size_t at = 1; at + 1 < a.size(); at += 2) {
        if (std::abs(std::stoi(a.substr(at, 2), nullptr, 16) - std::stoi(b.substr(at, 2), nullptr, 16)) > 1) {
            return false;
        }
    }
    return true;
}

// How much of a body has one colour.
struct ColourShare {
    std::string colour;
    double source = 0;
    double output = 0;
};

double share_of(std::string const & colour, std::map<std::string, double> const & colours)
{
    double share = 0;
    for (auto const & [other, part] : colours) {
        share += near_colour(colour, other) ? part : 0;
    }
    return share;
}

// The first of the colours, none apart, of which one body has more than the other.
std::optional<ColourShare> differing_share(std::map<std::string, double> const & wanted,
                                           std::map<std::string, double> const & source,
                                           std::map<std::string, double> const & output)
{
    for (auto const & [colour, share] : wanted) {
        double const in = share_of(colour, source);
        double const out = share_of(colour, output);
        if (!colour.empty() && !(std::abs(in - out) <= 1.0e-3 * std::max(in, out))) {
            return ColourShare{colour, in, out};
        }
    }
    return std::nullopt;
}

sdkText colour_text(sdkBody const & body, ColourShare const & share, std::string const & in,
                    std::string const & out)
{
    auto const what = body.title();
    auto const place = body.place();
    if (in == out || (in.empty() && share.source > 0)) {
        return sdkText("measure::%s at %s has the colour %s on %.6g mm2 in the source and on %.6g mm2 in the "
                       "output",
                       what, place, sdk_colour_text(share.colour), share.source, share.output);
    }
    if (in.empty()) {
        return sdkText("measure::%s at %s has no colour in the source and %s in the output", what, place,
                       sdk_colour_text(share.colour));
    }
    return out.empty() ? sdkText("measure::%s at %s has the colour %s in the source and none in the output",
                                 what, place, sdk_colour_text(in))
                       : sdkText("measure::%s at %s has the colour %s in the source and %s in the output",
                                 what, place, sdk_colour_text(in), sdk_colour_text(out));
}

} // namespace

bool sdk_same_name(std::string const & a, std::string const & b)
{
    return a == b || in_ascii(a) == b || a == in_ascii(b);
}

std::string sdk_name_as_written(std::string const & name, sdkPromise const & promise)
{
    return promise.ascii_names ? in_ascii(name) : name;
}

bool sdk_same_colour(std::string const & a, std::string const & b, bool transparency)
{
    return near_colour(transparency ? a : opaque(a), transparency ? b : opaque(b));
}

std::string sdk_colour_text(std::string const & colour)
{
    // The last two digits are of interest only where something shines through.
    return colour.size() == 9 && colour.ends_with("ff") ? colour.substr(0, 7) : colour;
}

std::string sdk_main_colour(std::map<std::string, double> const & colours)
{
    auto const largest = std::max_element(colours.begin(), colours.end(),
                                          [](auto const & a, auto const & b) { return a.second < b.second; });
    return largest == colours.end() ? std::string() : largest->first;
}

bool sdk_same_colours(std::map<std::string, double> const & source,
                      std::map<std::string, double> const & output)
{
    return !differing_share(source, source, output);
}

namespace {

template <class Add>
void compare_layers(sdkBody const & source, sdkBody const & output, Add const & add)
{
    for (auto const & layer : source.layers) {
        if (output.layers.count(layer) == 0) {
            add("layer",
                sdkText("measure::%s at %s is in the layer \"%s\" in the source and not in the output",
                        source.title(), source.place(), layer));
            return;
        }
    }
    if (source.layers.empty() && !output.layers.empty()) {
        add("layer", sdkText("measure::%s at %s is in no layer in the source and in \"%s\" in the output",
                             source.title(), source.place(), *output.layers.begin()));
    }
}

} // namespace

void sdk_compare_attributes(sdkBody const & source, sdkBody const & output, sdkPromise const & promise,
                            std::vector<sdkFinding> & findings)
{
    auto const & holds = promise.holds;
    auto const add = [&](char const * kind, sdkText text) {
        findings.push_back({sdkWeight::difference, kind, source.part, source.place(), std::nullopt,
                            std::nullopt, std::move(text)});
    };
    if (holds.names && !source.part.empty() &&
        output.names.count(sdk_name_as_written(source.part, promise)) == 0) {
        add("name",
            sdkText("measure::The name \"%s\" at %s is not in the output, where the part is called \"%s\"",
                    source.part, source.place(), output.part));
    }
    if (holds.colours) {
        auto const in = holds.transparency ? source.colours : opaque(source.colours);
        auto const out = holds.transparency ? output.colours : opaque(output.colours);
        auto share = differing_share(in, in, out);
        // What is to be hidden may need a style in which to say so, and that a colour, which nobody sees.
        if (!share && !(source.hidden && output.hidden)) {
            share = differing_share(out, in, out);
        }
        if (share) {
            add("colour", colour_text(source, *share, sdk_main_colour(in), sdk_main_colour(out)));
        }
    }
    if (holds.layers) {
        compare_layers(source, output, add);
    }
    if (holds.visibility && source.hidden != output.hidden) {
        add("visibility", source.hidden
                              ? sdkText("measure::%s at %s is hidden in the source and visible in the output",
                                        source.title(), source.place())
                              : sdkText("measure::%s at %s is visible in the source and hidden in the output",
                                        source.title(), source.place()));
    }
}

void sdk_compare_names(sdkInventory const & source, sdkInventory const & output, sdkPromise const & promise,
                       std::vector<sdkFinding> & findings)
{
    std::set<std::string> there;
    for (auto const & body : output.bodies) {
        there.insert(body.names.begin(), body.names.end());
    }
    std::set<std::string> told;
    for (auto const & body : source.bodies) {
        if (!body.part.empty() && there.count(sdk_name_as_written(body.part, promise)) == 0 &&
            told.insert(body.part).second) {
            findings.push_back({sdkWeight::difference, "name", body.part, body.place(), std::nullopt,
                                std::nullopt,
                                sdkText("measure::The name \"%s\" is not in the output", body.part)});
        }
    }
}

void sdk_compare_structure(sdkInventory const & source, sdkInventory const & output,
                           std::vector<sdkFinding> & findings)
{
    if (output.instances < source.instances) {
        findings.push_back(
            {sdkWeight::loss,
             "instances",
             {},
             {},
             static_cast<double>(source.instances),
             static_cast<double>(output.instances),
             sdkText("measure::The assemblies of the source have %d instances and those of the output %d",
                     source.instances, output.instances)});
    }
    if (output.assemblies < source.assemblies) {
        findings.push_back({sdkWeight::loss,
                            "assemblies",
                            {},
                            {},
                            static_cast<double>(source.assemblies),
                            static_cast<double>(output.assemblies),
                            sdkText("measure::The source has %d assemblies and the output %d",
                                    source.assemblies, output.assemblies)});
    }
}
