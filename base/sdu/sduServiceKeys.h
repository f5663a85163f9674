#pragma once

/// The services that the system registers, with the type that each holder must have.
inline constexpr char const * sduIMAGEREADER = "sduIMAGEREADER";       ///< iioImageReader
inline constexpr char const * sduBODYKERNEL = "sduBODYKERNEL";         ///< sdaIAQTKernel const
inline constexpr char const * sduXMLPATHFACTORY = "sduXMLPATHFACTORY"; ///< axmIXmlPathFactory
inline constexpr char const * sduXMLDOCUMENTFACTORY =
    "sduXMLDOCUMENTFACTORY"; ///< std::shared_ptr<axmDocumentFactory>
inline constexpr char const * sdbSDBFILEFACTORY = "sdbSDBFILEFACTORY";   ///< sdbSdbFileFactory const
inline constexpr char const * sduSYNCHOPERATIONS = "sduSYNCHOPERATIONS"; ///< apISynchOperations const
inline constexpr char const * sduPROCESSTHREADOPERATIONS =
    "sduPROCESSTHREADOPERATIONS"; ///< apIProcessThreadOperations const
inline constexpr char const * sduLIBRARYLOADEROPERATIONS =
    "sduLIBRARYLOADEROPERATIONS"; ///< apILibraryLoaderOperations const
inline constexpr char const * s2sANALYTICSOPERATION = "s2sANALYTICSOPERATION"; ///< s2sAnalytics

/// The key of the company's name in the application information.
inline constexpr char const * sduCOMPANYNAME = "sduCOMPANYNAME";
