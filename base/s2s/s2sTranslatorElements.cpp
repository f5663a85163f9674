#include "s2s/s2sTranslatorElements.h"

#include "vmr/vmrTableInstance.h"

s2sTranslatorElements::s2sTranslatorElements(utString const & file, vmrTableInstance const * table,
                                             utString const & translator, int is_viewer,
                                             utString const & format)
    : m_file(file), m_table(table ? std::make_shared<vmrTableInstance const>(*table) : nullptr),
      m_translator(translator), m_is_viewer(is_viewer), m_format(format)
{
}

s2sOutputTranslatorElements::s2sOutputTranslatorElements(utString const & file,
                                                         vmrTableInstance const * table,
                                                         utString const & translator, annDocument * document,
                                                         int is_viewer, utString const & format)
    : s2sTranslatorElements(file, table, translator, is_viewer, format), m_document(document)
{
}
