#pragma once

#include <memory>
#include <vector>

#include "ut/utString.h"

/// Answers XPath 1.0 queries on one XML text. A node's value is its text, an attribute's is what it is set
/// to; queries that give a number or a text, such as count(//part), have that as their one value.
class axmIXmlPath {
public:
    virtual ~axmIXmlPath() = default;

    /// The value of the first match in document order. Returns 0, leaving `value` alone, when nothing matches
    /// or the path is no XPath.
    virtual int value(utString const & path, utString & value) const = 0;

    /// The values of all matches in document order. Returns 0 only when the path is no XPath.
    virtual int values(utString const & path, std::vector<utString> & values) const = 0;
};

/// Makes path queries.
class axmIXmlPathFactory {
public:
    virtual ~axmIXmlPathFactory() = default;

    /// Null, with the reason and its line in `error`, when the text is no XML.
    virtual std::unique_ptr<axmIXmlPath> make_path(utString const & xml, utString & error) const = 0;
};
