#pragma once

#include "ap/apStringCompareInsensitive.h"
#include "ap/apStringEncodingChooser.h"
#include "sdb/sdbTranslatorDlls.h"

#include <memory>
#include <vector>

/// A catalogue of formats that a test declares, without files behind it.
class kitCatalogue {
public:
    explicit kitCatalogue(std::vector<sdbFormatDeclaration> formats)
    {
        auto module = std::make_shared<sdbTranslatorModule>();
        module->module_path = "/nowhere/module.so";
        for (auto & format : formats)
            format.input = format.output = true;
        module->formats = std::move(formats);
        auto contents = std::make_shared<sdbCatalogueContents>();
        contents->modules.push_back(module);
        m_dlls = std::make_unique<sdbTranslatorDlls>(sdbTranslatorSide::input, contents, m_infos, &m_compare,
                                                     utString());
    }

    static sdbFormatDeclaration format(std::string const & name, std::string const & label,
                                       std::string const & extension)
    {
        sdbFormatDeclaration declared;
        declared.name = name;
        declared.filter = label;
        declared.extensions = {extension};
        declared.resource_file = extension + ".rsc";
        return declared;
    }

    sdbTranslatorDlls const & dlls() const { return *m_dlls; }
    apIStringCompare const * compare() const { return &m_compare; }

private:
    apStringCompareInsensitive m_compare{
        utObserverPtr<apIStringEncoding const>(apStringEncodingChooser::ut_encoding())};
    sdbTranslatorInfoFactory m_infos{nullptr, apStringEncodingChooser::ut_encoding(), &m_compare};
    std::unique_ptr<sdbTranslatorDlls> m_dlls;
};
