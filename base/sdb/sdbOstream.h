#pragma once

#include <ostream>
#include <string_view>
#include <vector>

#include "ap/apCriticalSection.h"

/// The text of a command-line run, written to one or several streams at once: the terminal and a log. Every
/// operation may be called from any thread; what one call writes stays together.
class sdbOstream {
public:
    explicit sdbOstream(apISynchOperations const * operations); ///< null stands for the platform's own

    void add_ostream(std::ostream * stream); ///< not owned; null is passed over
    void auto_flush(int on); ///< non-zero to flush every stream after each write; off at first

    /// Text that comes while a progress row stands open begins on a line of its own.
    void print(char const * text);
    void
    print_row_label(char const * text); ///< the label in front of the progress row, which stands open then
    void print_dot();                   ///< a dot of the progress row
    void print_percent(int value);      ///< a figure of the progress row, as 10%

private:
    void write(std::string_view text); // within the section

    apCriticalSection m_section;
    std::vector<std::ostream *> m_streams;
    bool m_auto_flush = false;
    bool m_in_row = false;
};
