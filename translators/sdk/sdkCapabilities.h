#pragma once

// What a format, or a file of it that is written with certain options, can hold. Surfaces are exact ones;
// triangles instead of them are no surfaces.
struct sdkCapabilities {
    bool structure = true;
    bool names = true;
    bool colours = true;
    bool layers = true;
    bool curves = true;
    bool points = true;
    bool surfaces = true;
    bool visibility = true;
    bool transparency = true; // of colours
    bool solids = true;       // as such; else only the faces that bound them
};
