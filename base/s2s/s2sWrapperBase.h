#pragma once

/// A job of the engine: one translation or a batch of them.
class s2sWrapperBase {
public:
    /// Does the work on the calling thread; greater than 0 when it succeeded. Never throws. Before it
    /// returns, the channel's threadHasDied() is true, however the work ended.
    virtual int run() const = 0;
    virtual ~s2sWrapperBase() = default;
};
