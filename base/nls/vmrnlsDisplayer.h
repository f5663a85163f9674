#pragma once

/// Where finished text goes: a control, a stream, a file.
class vmrnlsDisplayer {
public:
    vmrnlsDisplayer() = default;

    virtual void display(char const * text) = 0; ///< called on whatever thread has something to say
    virtual ~vmrnlsDisplayer() = default;
};
