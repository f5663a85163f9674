#pragma once

/// The fields of the startup settings that the programs of the system share.
inline constexpr char const * sduSTARTASVIEWER = "start_as_viewer";
inline constexpr char const * sduPREFERREDINPUTFORMAT = "preferred_input_format";
inline constexpr char const * sduPREFERREDOUTPUTFORMAT = "preferred_output_format";
inline constexpr char const * sduDEFAULTSAVEDIRECTORY = "default_save_directory";
inline constexpr char const * sduTRIANGULATIONTOLERANCE = "triangulation_tolerance";
inline constexpr char const * sduCOLOURSCHEME = "colour_scheme";
inline constexpr char const * sduTOPCOLOUR = "top_colour";
inline constexpr char const * sduBOTTOMCOLOUR = "bottom_colour";
inline constexpr char const * sduGRADUATEDBACKGROUND = "graduated_background";
inline constexpr char const * sduFACECOLOUR = "face_colour";
inline constexpr char const * sduBACKFACECOLOUR = "back_face_colour";
inline constexpr char const * sduSELECTIONCOLOUR = "selection_colour";
/// What one translation may take: seconds without anything new, and megabytes of memory and of an output
/// file.
inline constexpr char const * sduTRANSLATIONPATIENCE = "translation_patience";
inline constexpr char const * sduTRANSLATIONMEMORY = "translation_memory";
inline constexpr char const * sduTRANSLATIONOUTPUTSIZE = "translation_output_size";
