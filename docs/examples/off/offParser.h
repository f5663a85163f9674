#pragma once

#include "sdk/sdkResult.h"

#include <Message_ProgressScope.hxx>
#include <gp_XYZ.hxx>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What a file holds, in its own unit. Polygons are cut into triangles that share their first corner.
struct offMesh {
    std::vector<gp_XYZ> points;
    std::vector<std::array<int, 3>> triangles; // numbers of points, counted from 0
    std::int64_t dropped = 0;                  // polygons with fewer than three corners
};

// Parses the text form. Numbers are separated by blanks and line ends; a comment begins with # and takes the
// rest of its line.
//
//   file    = "OFF" points polygons edges { point } { polygon }
//   point   = x y z, and what follows in its line
//   polygon = n, n numbers of points counted from 0, and what follows in its line
class offParser {
public:
    // `file` is the name for the user.
    offParser(std::string_view content, std::string const & file, Message_ProgressRange const & range);

    // The text of a failure names the line.
    sdkResult parse(offMesh & mesh);

private:
    bool header(std::int64_t & points, std::int64_t & polygons);
    bool point(offMesh & mesh);
    bool polygon(offMesh & mesh);
    std::string_view next_word();
    void rest_of_line();
    bool count(std::int64_t & value, std::int64_t limit, char const * what);
    bool number(double & value);
    bool fail(sdkText const & text);
    bool unexpected(std::string_view found, char const * expected);
    bool go_on();

    std::string const & m_file;
    char const * m_begin;
    char const * m_end;
    char const * m_at;
    char const * m_reported;
    std::int64_t m_line = 1;
    Message_ProgressScope m_scope;
    bool m_cancelled = false;
    sdkText m_failure;
};
