#pragma once

#include "ut/utPtr.h"
#include "ut/utString.h"

class wxDataObject;

enum class sglClipboardStatus {
    copied = 0,
    already_open = 1, ///< by another part of the program; its contents are as they were
    failed = 2,
};

/// Something that can go to the clipboard. Graphical thread.
class sglClipboardItem {
public:
    virtual ~sglClipboardItem() = default;

    sglClipboardStatus copy_to_clipboard();

protected:
    virtual wxDataObject * create_data_handle(utPtrReleaseTag) const = 0;
};

/// A text for the clipboard.
class sglClipboardText : public sglClipboardItem {
public:
    explicit sglClipboardText(utString text) : m_text(std::move(text)) {}

protected:
    wxDataObject * create_data_handle(utPtrReleaseTag) const override;

private:
    utString m_text;
};
