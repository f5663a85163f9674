#pragma once

#include <memory>

#include "co/coPageArr.h"
#include "ut/utString.h"

class annDocument;
class vmrTableInstance;

/// One side of a translation, for one file. The resource table is copied when the object is made, so that a
/// later change by its owner does not reach a running translation; copies of this object share that copy.
class s2sTranslatorElements {
public:
    /// `table` may be null: then every option has the default of its format. `translator` is the file of the
    /// format module.
    s2sTranslatorElements(utString const & file, vmrTableInstance const * table, utString const & translator,
                          int is_viewer, utString const & format);
    s2sTranslatorElements(s2sTranslatorElements const &) = default;
    s2sTranslatorElements & operator=(s2sTranslatorElements const &) = default;
    virtual ~s2sTranslatorElements() = default;

    utString const & file() const { return m_file; }
    utString const & format() const { return m_format; }
    int is_viewer() const { return m_is_viewer; }
    utString const & translator() const { return m_translator; }
    vmrTableInstance const * table() const { return m_table.get(); } ///< null when none was given

private:
    utString m_file;
    std::shared_ptr<vmrTableInstance const> m_table;
    utString m_translator;
    int m_is_viewer;
    utString m_format;
};

/// The output side of a translation.
class s2sOutputTranslatorElements : public s2sTranslatorElements {
public:
    /// `document` is not owned and may be null.
    s2sOutputTranslatorElements(utString const & file, vmrTableInstance const * table,
                                utString const & translator, annDocument * document, int is_viewer,
                                utString const & format);

    annDocument * document() const { return m_document; }

private:
    annDocument * m_document;
};

using s2sTranslatorElementscoPageArr = coPageArr<s2sTranslatorElements>;
using s2sTranslatorElementscoPageArrcoIterator = s2sTranslatorElementscoPageArr::coIterator;
