#pragma once

/// A flag that a thread waiting in poll() notices: the descriptor is readable while the flag is set. Any
/// thread may call any operation.
class s2sWakeUp {
public:
    s2sWakeUp();
    ~s2sWakeUp();
    s2sWakeUp(s2sWakeUp const &) = delete;
    s2sWakeUp & operator=(s2sWakeUp const &) = delete;

    void set();
    void clear();
    int descriptor() const { return m_descriptor; } ///< -1 when the system has no descriptors left

private:
    int m_descriptor;
};
