#pragma once

#include <memory>

#include "ap/apPathName.h"
#include "xml/axmIXmlPath.h"

/// An XML document that can be changed and saved. Nodes are named by XPath.
class axmDocument : public axmIXmlPath {
public:
    /// Sets the text of the first matching element or the value of the first matching attribute; 0 when none
    /// matches.
    virtual int set_value(utString const & path, utString const & value) = 0;

    /// Adds an element with a text, which may be empty, as last child of the first match; 0 when none matches
    /// or the name cannot be one of an element.
    virtual int add_element(utString const & parent, utString const & name, utString const & text) = 0;

    /// Sets an attribute of the first matching element, adding it where it is missing; 0 as above.
    virtual int set_attribute(utString const & element, utString const & name, utString const & value) = 0;

    virtual utString text() const = 0; ///< the whole document as UTF-8

    /// Writes the file whole: an interruption leaves the file of before. Returns 0 with the reason in
    /// `error`.
    virtual int save(apPathName const & file, utString & error) const = 0;
};

/// Makes documents. Where that fails the result is null and `error` says why and where.
class axmDocumentFactory {
public:
    virtual ~axmDocumentFactory() = default;

    virtual std::unique_ptr<axmDocument>
    make_document(utString const & root_element) const = 0; ///< null for no name
    virtual std::unique_ptr<axmDocument> load_text(utString const & xml, utString & error) const = 0;
    virtual std::unique_ptr<axmDocument> load_file(apPathName const & file, utString & error) const = 0;
};
