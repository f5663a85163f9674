#pragma once

#include "sdk/sdkContext.h"
#include "sdk/sdkDocument.h"
#include "sdk/sdkResult.h"

#include <Message_ProgressRange.hxx>

#include <memory>
#include <string>

// The version of everything below; it rises when a module built against the older one would not work.
inline constexpr int sdk_interface = 1;

// Reads one file in two steps. The host calls each step once, in this order, and the second only when the
// first has completed. Both advance the range that they are given and return sdkResult::cancelled() soon
// after its UserBreak() has become true. std::bad_alloc and Standard_OutOfMemory may pass; the host tells the
// user about them.
class sdkReader {
public:
    virtual ~sdkReader() = default;
    virtual sdkResult parse(std::string const & path, Message_ProgressRange const & range) = 0;
    // Appends free shapes to a document that may have others already, in millimetres.
    virtual sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) = 0;
};

// Writes one document in two steps, under the same rules. The document is the writer's own: it may change it.
class sdkWriter {
public:
    virtual ~sdkWriter() = default;
    // Converts the document to what the format can hold. A writer that finds nothing to write says so to the
    // reporter, completes with none processed, and writes no file in the second step.
    virtual sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) = 0;
    // Companion files go into the folder of the path.
    virtual sdkResult write(std::string const & path, Message_ProgressRange const & range) = 0;
};

// What a module offers. The context outlives the reader or writer. Null when the format does not have that
// side.
class sdkModule {
public:
    virtual ~sdkModule() = default;
    virtual std::unique_ptr<sdkReader> make_reader(std::string const & format,
                                                   sdkContext & context) const = 0;
    virtual std::unique_ptr<sdkWriter> make_writer(std::string const & format,
                                                   sdkContext & context) const = 0;
};

// The two functions by which the host enters a module. The module object is static; the host does not delete
// it.
extern "C" {
int sdk_interface_version();
sdkModule const * sdk_module();
}
