#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

// Changes settings of Open CASCADE's exchange machinery, which are global to the process, and puts the old
// values back when it goes. The controller of the format must have been initialised before, and a reader or
// writer takes notice only when it is constructed afterwards. A setting that does not exist throws
// std::logic_error.
class sdkStatics {
public:
    sdkStatics() = default;
    ~sdkStatics();
    sdkStatics(sdkStatics const &) = delete;
    sdkStatics & operator=(sdkStatics const &) = delete;

    void set(char const * name, std::string const & value);
    void set(char const * name, char const * value) { set(name, std::string(value)); }
    void set(char const * name, int value);
    void set(char const * name, double value);

private:
    using Value = std::variant<std::string, int, double>;
    std::vector<std::pair<std::string, Value>> m_old;
};
