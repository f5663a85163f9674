#include "sglServices.h"

#include "sglAnalytics.h"

#include "s2s/s2sAnalytics.h"
#include "sdb/sdbServiceDllManager.h"
#include "sdu/sduServiceKeys.h"
#include "sdu/sduServicePtr.h"

namespace {

template <class T>
T * look_up(vmrabsAppInfo const & info, char const * key)
{
    sduServicePtr<T> service;
    if (auto const * services = info.services())
        services->find_service(sduServiceKey(key), service);
    return service.pointer();
}

} // namespace

sglServices::sglServices(utObserverPtr<apILibraryLoaderOperations const> library_loader,
                         utObserverPtr<apIFileOperations const> files,
                         utObserverPtr<apISynchOperations const> synch,
                         utObserverPtr<apIProcessThreadOperations const> process_thread)
    : m_loader(library_loader), m_library_loader(library_loader.get()), m_files(files.get()),
      m_synch(synch.get()), m_process_thread(process_thread.get())
{
}

void sglServices::initialise_services(utObserverPtr<vmrabsAppInfo> info, sdbSearchPath const & services_path,
                                      utObserverPtr<sglAnalytics> analytics)
{
    m_file_factory = std::make_unique<sdbSdbFileFactory>(info->ut_encoding(), m_files);
    add_service(sduIMAGEREADER, sduServicePtr<iioImageReader>(&m_image_reader));
    add_service(sduBODYKERNEL, sduServicePtr<sdaIAQTKernel const>(&m_kernel));
    add_service(sduXMLPATHFACTORY, sduServicePtr<axmIXmlPathFactory>(&m_xml_path_factory));
    m_document_factory = std::make_shared<xxmDocumentFactory>();
    add_service(sduXMLDOCUMENTFACTORY,
                sduServicePtr<std::shared_ptr<axmDocumentFactory>>(&m_document_factory));

    auto manager = std::make_unique<sdbServiceDllManager>(
        services_path, utObserverPtr<sdbIDynamicLibraryLoader>(&m_loader), info);
    set_dll_manager(manager, info);

    add_service(sdbSDBFILEFACTORY, sduServicePtr<sdbSdbFileFactory const>(m_file_factory.get()));
    add_service(sduSYNCHOPERATIONS, sduServicePtr<apISynchOperations const>(m_synch));
    add_service(sduPROCESSTHREADOPERATIONS,
                sduServicePtr<apIProcessThreadOperations const>(m_process_thread));
    add_service(sduLIBRARYLOADEROPERATIONS,
                sduServicePtr<apILibraryLoaderOperations const>(m_library_loader));
    add_service(s2sANALYTICSOPERATION, sduServicePtr<s2sAnalytics>(analytics.get()));
    info->set_services(this);
}

apILibraryLoaderOperations const * sgl_library_loader_operations(vmrabsAppInfo const & info)
{
    return look_up<apILibraryLoaderOperations const>(info, sduLIBRARYLOADEROPERATIONS);
}

apIProcessThreadOperations const * sgl_process_thread_operations(vmrabsAppInfo const & info)
{
    return look_up<apIProcessThreadOperations const>(info, sduPROCESSTHREADOPERATIONS);
}

apISynchOperations const * sgl_synch_operations(vmrabsAppInfo const & info)
{
    return look_up<apISynchOperations const>(info, sduSYNCHOPERATIONS);
}
