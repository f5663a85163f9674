#pragma once

/// Takes the filter with which a file dialog opens.
class sdbFilterIndexSet {
public:
    virtual ~sdbFilterIndexSet() = default;
    virtual void set_filter_index(int index) const = 0; ///< counted from 0
};
