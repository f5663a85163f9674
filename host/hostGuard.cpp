#include "host/hostGuard.h"

#include "host/hostMemory.h"

#include <Standard_Failure.hxx>
#include <Standard_OutOfMemory.hxx>

#include <exception>
#include <new>

namespace {

sdkResult failed(hostSubject const & subject, std::string const & reason)
{
    if (subject.writing) {
        return sdkResult::write_error(sdkText("host::%s could not be written: %s", subject.file, reason));
    }
    return sdkResult::read_error(sdkText("host::%s could not be read: %s", subject.file, reason));
}

} // namespace

sdkResult host_guard(std::function<sdkResult()> const & work, std::function<hostSubject()> const & subject)
{
    try {
        return work();
    } catch (std::bad_alloc const &) {
        return host_out_of_memory(subject().file);
    } catch (Standard_OutOfMemory const &) {
        return host_out_of_memory(subject().file);
    } catch (Standard_Failure const & failure) {
        return failed(subject(),
                      std::string(failure.DynamicType()->Name()) + " " + failure.GetMessageString());
    } catch (std::exception const & failure) {
        return failed(subject(), failure.what());
    }
}

sdkResult host_out_of_memory(std::string const & file)
{
    constexpr std::uint64_t megabyte = 1024 * 1024;
    return sdkResult::too_big(
        sdkText("host::The memory allowed, %d MB, does not suffice for %s; close other programs, do less at "
                "once, or raise the setting %s",
                host_memory_limit() / megabyte, file, "translation_memory"));
}
