#pragma once

#include <gtest/gtest.h>
#include <wx/debug.h>
#include <wx/string.h>

/// A failed assertion of the toolkit fails the test, from this call on. To be called after the application
/// object was made, which takes the assertions for itself.
inline void kit_fail_on_assertions()
{
    wxSetAssertHandler([](wxString const & file, int line, wxString const & function,
                          wxString const & condition, wxString const & message) {
        ADD_FAILURE() << "assertion of the toolkit: " << condition.utf8_string() << " in "
                      << function.utf8_string() << ", " << file.utf8_string() << ":" << line << ": "
                      << message.utf8_string();
    });
}
