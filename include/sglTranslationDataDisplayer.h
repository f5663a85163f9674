#pragma once

#include "sdb/sdbSdbFileFactory.h"
#include "sdb/sdbTranslationData.h"
#include "sdu/sduServicePtr.h"
#include "vmr/vmrabsAppInfo.h"

/// Writes the report of a finished translation: its title, an outline of its files, formats and overridden
/// options, the messages of the run, and what came of comparing the output with its source. The concrete
/// displayers decide what a line and a level of depth are. An object serves for one display(); the depth is
/// not put back at its end. Graphical thread where the place of the report is a window.
class sglTranslationDataDisplayer {
public:
    /// Neither the record nor the information is owned; the record must outlive the displayer.
    sglTranslationDataDisplayer(sdbTranslationData const * record, vmrabsAppInfo const * info);

    int display(); ///< writes the whole report; returns 1

    /// The name of a record in one line.
    static utString title(sdbTranslationData const * record, sdbSdbFileFactory const * files);

protected:
    virtual void display_text(utString const & text) = 0;    ///< one line at the current depth
    virtual void increment_depth(utString const & text) = 0; ///< one line, then one level deeper
    virtual void decrement_depth() = 0;
    ~sglTranslationDataDisplayer() = default;

    void display_file_details(utString const & file, utString const & format, vmrTableInstance const & table);
    void display_messages(utString const & messages, unsigned int header_id); ///< nothing for an empty text
    void display_resource_overrides(vmrTableInstance const & table);
    /// Nothing where nobody compared the output with its source and there is nothing to say of the source.
    void display_verification(sdbVerdict verdict, sdbFindings const & findings);

private:
    void display_translation(int index);
    void display_inputs(int index);
    void display_output(int index);

    sdbTranslationData const * m_record;
    sduServicePtr<sdbSdbFileFactory const> m_files;
};
