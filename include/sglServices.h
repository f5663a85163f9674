#pragma once

#include <memory>

#include "ap/apDynamicLibraryLoader.h"
#include "ap/apIFileOperations.h"
#include "ap/apILibraryLoaderOperations.h"
#include "ap/apIProcessThreadOperations.h"
#include "ap/apISynchOperations.h"
#include "sdb/sdbSdbFileFactory.h"
#include "sdb/sdbSearchPath.h"
#include "sdb/sdbServices.h"
#include "sglImageReader.h"
#include "tqt/tqtKernel.h"
#include "ut/utPtr.h"
#include "vmr/vmrabsAppInfo.h"
#include "xml/axmSimpleXmlFactory.h"
#include "xml/xxmDocumentFactory.h"

class sglAnalytics;

/// The services of this program: what components that do not know each other find by key through the
/// application information. Filled once at start-up on the main thread, read from any thread afterwards
/// without a lock. The providers are fields of this object and outlive every user.
class sglServices : public sdbServices {
public:
    sglServices(utObserverPtr<apILibraryLoaderOperations const> library_loader,
                utObserverPtr<apIFileOperations const> files, utObserverPtr<apISynchOperations const> synch,
                utObserverPtr<apIProcessThreadOperations const> process_thread);

    /// Adds every service and loads the service modules; only after it can anybody find a service through
    /// `info`.
    void initialise_services(utObserverPtr<vmrabsAppInfo> info, sdbSearchPath const & services_path,
                             utObserverPtr<sglAnalytics> analytics);

private:
    axmSimpleXmlFactory m_xml_path_factory;
    std::shared_ptr<axmDocumentFactory> m_document_factory;
    sglImageReader m_image_reader;
    tqtKernel m_kernel;
    std::unique_ptr<sdbSdbFileFactory> m_file_factory;
    apDynamicLibraryLoader m_loader;
    apILibraryLoaderOperations const * m_library_loader;
    apIFileOperations const * m_files;
    apISynchOperations const * m_synch;
    apIProcessThreadOperations const * m_process_thread;
};

/// The operations as registered, or null before the services have been initialised.
apILibraryLoaderOperations const * sgl_library_loader_operations(vmrabsAppInfo const & info);
apIProcessThreadOperations const * sgl_process_thread_operations(vmrabsAppInfo const & info);
apISynchOperations const * sgl_synch_operations(vmrabsAppInfo const & info);
