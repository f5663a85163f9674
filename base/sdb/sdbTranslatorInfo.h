#pragma once

#include <memory>

#include "ap/apFileName.h"
#include "ap/apPathName.h"
#include "sdb/sdbFormatDeclaration.h"
#include "sdb/sdbFormatName.h"
#include "sdb/sdbTranslatorLoadStatus.h"
#include "sdb/sdbTranslatorModule.h"
#include "sdb/sdbUntranslatedFilterElement.h"
#include "ut/utString.h"

class s2sTranslatorLoader;

/// One format of a translator module on one side, input or output. It describes the translator from the
/// beginning and loads it when load is first called. Used on the main thread.
class sdbTranslatorInfo {
public:
    /// `format` belongs to `module`. The loader is not owned.
    sdbTranslatorInfo(std::shared_ptr<sdbTranslatorModule const> module, sdbFormatDeclaration const & format,
                      int category_order, s2sTranslatorLoader * loader);

    /// Makes the translator ready for use if that has not been done: finds its module fit to be run, with the
    /// right version of the module interface, and makes the format's resources known to the process. The
    /// module's code is not taken into this process; the translation process alone runs it. A failure goes
    /// into `status`, and the next call tries again.
    virtual void load(sdbTranslatorLoadStatus & status) const;
    virtual ~sdbTranslatorInfo() = default;
    sdbTranslatorInfo(sdbTranslatorInfo const &) = delete;
    sdbTranslatorInfo & operator=(sdbTranslatorInfo const &) = delete;

    utString file_ut() const { return utString(m_module->module_path); } ///< the path of the module
    sdbFormatName const & format_name() const { return m_name; }
    int is_viewer() const { return m_format.viewer ? 1 : 0; } ///< shows a file and does not produce one
    sdbUntranslatedFilterElement filter() const;
    /// With the format's first extension; unchanged when the format has none.
    apPathName change_extension(apPathName const & path) const;
    apFileName resource_file_name() const { return apFileName::from_utf8(m_format.resource_file); }

    bool loaded() const { return m_loaded; }
    sdbFormatDeclaration const & declaration() const
    {
        return m_format;
    } ///< what the manifest says of the format
    sdbTranslatorModule const & module() const { return *m_module; }
    s2sTranslatorLoader * loader() const { return m_loader; }

private:
    std::shared_ptr<sdbTranslatorModule const> m_module;
    sdbFormatDeclaration const & m_format;
    sdbFormatName m_name;
    int m_category_order;
    s2sTranslatorLoader * m_loader;
    mutable bool m_loaded = false;
};
