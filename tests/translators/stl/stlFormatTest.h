#pragma once

#include "stl/stlReader.h"
#include "stl/stlWriter.h"
#include "translators/kit/kitFormatTest.h"

#include <cstring>
#include <string>
#include <vector>

class stlFormatTest : public kitFormatTestOf<stlReader, stlWriter> {
protected:
    stlFormatTest() : kitFormatTestOf(STL_MANIFEST, "STL") {}

    // Reads a file of that content.
    sdkResult read_content(std::string const & content, sdkDocument & document, Values const & values = {})
    {
        return read(folder().write("part.stl", content), document, values);
    }

    // The text of the failure to read a file of that content; empty when it could be read.
    std::string failure_of(std::string const & content)
    {
        sdkDocument document;
        auto const result = read_content(content, document);
        EXPECT_TRUE(result || document.empty());
        return result ? std::string() : result.text().formatted();
    }
};

// A triangle as text, with corners at (x, 0, 0), (x + 1, 0, 0) and (x, 1, 0).
inline std::string stl_text_facet(int x = 0)
{
    auto const at = std::to_string(x);
    return "facet normal 0 0 1\nouter loop\nvertex " + at + " 0 0\nvertex " + std::to_string(x + 1) +
           " 0 0\nvertex " + at + " 1 0\nendloop\nendfacet\n";
}

// A binary file with these triangles, each of normal and three corners.
inline std::string stl_binary(std::string const & header,
                              std::vector<std::array<float, 12>> const & triangles)
{
    std::string content = header;
    content.resize(80, ' ');
    auto const count = static_cast<std::uint32_t>(triangles.size());
    content.append(reinterpret_cast<char const *>(&count), sizeof count);
    for (auto const & triangle : triangles) {
        content.append(reinterpret_cast<char const *>(triangle.data()), sizeof triangle);
        content.append(2, '\0');
    }
    return content;
}

inline constexpr std::array<float, 12> stl_triangle{0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0};
