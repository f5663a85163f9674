#pragma once

#include <map>

#include "ut/utString.h"

/// Names of fields of the product file.
inline constexpr char const * pruPRODUCT_TYPE = "product_type"; ///< CR, RC, ALPHA, BETA or another word
inline constexpr char const * pruPRODUCT_SP = "product_sp";     ///< service pack, a text with a number in it
inline constexpr char const * pruPRODUCT_RELEASE = "product_release"; ///< the release as users call it
inline constexpr char const * pruPRODUCT_NAME = "product_name";       ///< without a version
inline constexpr char const * pruCOMPANY_NAME = "company_name";

enum pruProductDataStatus : int {
    pruProductDataRead = 0,
    pruProductDataUnreadable = 1, ///< there is no such file, or it cannot be read
    pruProductDataMalformed = 2,  ///< some line is no field, or a field is there twice
    pruProductDataNoKey = 3,      ///< the file does not say which build it belongs to
    pruProductDataWrongKey = 4,   ///< the file belongs to another build
};

/// What the product file of an installation says about the product. The file has one field to a line,
///     name = value
/// with lines that begin with # as comments. The field `key` is the version followed by the build number of
/// the build that the file was made for; `short_name` and `long_name` are the product's names with its
/// version.
class pruProductInfo {
public:
    /// Replaces what was read before. With any status but pruProductDataRead the object is left without
    /// fields.
    pruProductDataStatus read_product_data(utString const & key, utString const & path);

    utString short_name() const;                 ///< the product name where the file has no short one
    utString long_name() const;                  ///< the short name where the file has no long one
    utString value(utString const & name) const; ///< invalid for a field that the file does not have

private:
    std::map<utString, utString> m_fields;
};
