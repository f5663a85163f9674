#pragma once

#include "vmr/vmrabsOutput.h"

/// A stream that nobody reads.
class benchSilence : public vmrabsOutput {
public:
    void write(char const *, char const *, utTextArguments const &) override {}
    utString text(char const *, char const * key, utTextArguments const &) const override { return key; }
};
