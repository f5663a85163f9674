#pragma once

#include <optional>
#include <string>
#include <vector>

enum class sdkResourceType { boolean, integer, real, text, choice };

// One option of a format as its manifest declares it. The default is in the stored text form.
struct sdkResource {
    std::string name;
    sdkResourceType type = sdkResourceType::text;
    std::vector<std::string> values;
    std::optional<double> minimum;
    std::optional<double> maximum;
    std::string default_value;
};

struct sdkFormat {
    std::string name;
    bool reads = false;
    bool writes = false;
    std::vector<sdkResource> resources;
};

// What the file beside a module declares, so far as readers and writers need it.
class sdkManifest {
public:
    // Returns an empty text when the file could be read, else what is wrong with it, in English.
    std::string load(std::string const & path);

    int interface_version() const { return m_interface; }
    // Null when there is no such format. Names of formats are compared exactly.
    sdkFormat const * format(std::string const & name) const;

private:
    int m_interface = 0;
    std::vector<sdkFormat> m_formats;
};
