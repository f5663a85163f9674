#pragma once

#include "xml/axmIXmlPath.h"

/// The path factory of the program.
class axmSimpleXmlFactory : public axmIXmlPathFactory {
public:
    std::unique_ptr<axmIXmlPath> make_path(utString const & xml, utString & error) const override;
};
