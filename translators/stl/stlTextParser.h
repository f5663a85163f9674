#pragma once

#include "stl/stlInput.h"

#include <Message_ProgressScope.hxx>

#include <optional>

// Parses the text form. Words may be in either case and are separated by blanks and line ends; the names take
// the rest of their line.
//
//   file   = solid { solid }
//   solid  = "solid" [ name ] { facet } "endsolid" [ name ]
//   facet  = "facet" "normal" number number number
//            "outer" "loop" vertex vertex vertex "endloop" "endfacet"
//   vertex = "vertex" number number number
//
// Normals may be zero or "nan", as they are computed anew; coordinates must be finite.
class stlTextParser {
public:
    stlTextParser(std::string_view content, stlInput & input, Message_ProgressRange const & range);

    // The text of a failure names the line.
    sdkResult parse();

private:
    std::string_view next_word();
    std::string_view rest_of_line();
    bool at_end();
    bool expect(std::string_view word);
    bool number(double & value);
    bool point(gp_XYZ & value);
    bool solid();
    bool facet(stlMesh & mesh);
    bool fail(sdkText const & text);
    std::int64_t line_of(char const * place) const;
    bool unexpected(std::string_view found, std::string_view expected);

    stlInput & m_input;
    char const * m_begin;
    char const * m_end;
    char const * m_at;
    char const * m_word; // begin of the latest word
    char const * m_reported;
    Message_ProgressScope m_scope;
    bool m_cancelled = false;
    sdkText m_failure;
};
