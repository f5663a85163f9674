#pragma once

#include "xml/axmDocumentFactory.h"

/// The document factory of the program.
class xxmDocumentFactory : public axmDocumentFactory {
public:
    std::unique_ptr<axmDocument> make_document(utString const & root_element) const override;
    std::unique_ptr<axmDocument> load_text(utString const & xml, utString & error) const override;
    std::unique_ptr<axmDocument> load_file(apPathName const & file, utString & error) const override;
};
