#pragma once

#include <functional>

#include "ut/utString.h"

class sdbTranslatorInfo;
class sglComboBox;

/// The name proposed for the output of a translation: that of the input file with the extension of the output
/// format, in the directory of the input or the one of the settings. Without an output format the catalogue
/// proposes one, which is then selected in `output_combo` (may be null). Returns 0 when there is no such
/// format; `result` is then the input file. Main thread.
int outfile_name(utString const & input_format, utString const & input_file, sglComboBox * output_combo,
                 utString const & output_format, utString & result);

/// Non-zero when a file can be written at `path`, whether or not there is one. What is there stays as it is.
int file_is_writable(utString const & path);

/// The path, or one with a number behind its name: the first that `is_taken` is false for.
utString sgl_numbered_name(utString const & path, std::function<bool(utString const &)> const & is_taken);

/// The path with the extension of the translator's format.
utString sgl_change_extension(sdbTranslatorInfo const & translator, utString const & path);
