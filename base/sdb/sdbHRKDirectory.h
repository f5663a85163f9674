#pragma once

/// The kinds of directories that sdbAppDirMap knows. The numbers are part of the interface.
enum class sdbHRKDirectory {
    translators = 1,        ///< translator modules and their manifests
    services = 2,           ///< service modules
    message_catalogues = 3, ///< the languages
    help = 5,               ///< help and document files
    product = 7,            ///< the file "product"
    resources = 8,          ///< resource files and "startup.hrk"
    translator_cache = 10,  ///< the file "translators.lst"
    xrc = 11,               ///< XRC files and bitmaps
    toolkit = 13            ///< where find_dir("lib") gives the folder of the toolkit's own catalogues
};
