#pragma once

// Integrals over an angle of cosine and sine and of the products of two of them.
struct sdkArcIntegrals {
    double one;
    double c;
    double s;
    double cc;
    double cs;
    double ss;
};

sdkArcIntegrals sdk_arc_integrals(double from, double to);
