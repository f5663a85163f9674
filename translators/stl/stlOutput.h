#pragma once

#include "stl/stlPlacedMesh.h"

#include <streambuf>
#include <string>
#include <vector>

// Puts triangles into a file in one of the two forms. Triangles without area must not come. What goes wrong
// is known to the stream buffer.

class stlBinaryOutput {
public:
    explicit stlBinaryOutput(std::streambuf & stream) : m_stream(stream) {}

    void begin(std::string const & text, std::uint32_t triangles);
    void triangle(stlCorners const & corners);

private:
    std::streambuf & m_stream;
};

class stlTextOutput {
public:
    stlTextOutput(std::streambuf & stream, int digits) : m_stream(stream), m_digits(digits) {}

    void begin_solid(std::string const & name);
    void triangle(stlCorners const & corners);
    void end_solid(std::string const & name);

private:
    void append(gp_XYZ const & point);
    void send();

    std::streambuf & m_stream;
    int m_digits;
    std::string m_text;
};
