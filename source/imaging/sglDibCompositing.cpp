// The family of operations that put one buffer over another.

#include "sglDib.h"

#include "sglDibRows.h"
#include "sglPixelBlocks.h"
#include "sglPixelFormulas.h"

namespace {

template <class Formula>
void combine(sglDib & to, sglDib const * from, Formula formula)
{
    if (from && from->width() == to.width() && from->height() == to.height())
        sgl_combine(to.pixels(), from->pixels(), to.count(), formula);
}

template <class Formula>
void combine_rect(sglDib & to, sglDib const * from, int x, int y, Formula formula)
{
    sgl_each_row(to, from, x, y, [=](sglCOLORREF * d, sglCOLORREF const * s, std::size_t count) {
        sgl_combine(d, s, count, formula);
    });
}

} // namespace

void sglDib::blend(sglDib * other, int a)
{
    combine(*this, other, sglBlendFormula(a));
}

void sglDib::blend_rect(sglDib * other, int x, int y, int a)
{
    combine_rect(*this, other, x, y, sglBlendFormula(a));
}

void sglDib::multiply(sglDib * other)
{
    combine(*this, other, sglMultiplyFormula());
}

void sglDib::multiply_rect(sglDib * other, int x, int y)
{
    combine_rect(*this, other, x, y, sglMultiplyFormula());
}

void sglDib::screen(sglDib * other)
{
    combine(*this, other, sglScreenFormula());
}

void sglDib::screen_rect(sglDib * other, int x, int y)
{
    combine_rect(*this, other, x, y, sglScreenFormula());
}

void sglDib::darken(sglDib * other)
{
    combine(*this, other, sglDarkenFormula());
}

void sglDib::darken_rect(sglDib * other, int x, int y)
{
    combine_rect(*this, other, x, y, sglDarkenFormula());
}

void sglDib::lighten(sglDib * other)
{
    combine(*this, other, sglLightenFormula());
}

void sglDib::lighten_rect(sglDib * other, int x, int y)
{
    combine_rect(*this, other, x, y, sglLightenFormula());
}

void sglDib::difference(sglDib * other)
{
    combine(*this, other, sglDifferenceFormula());
}

void sglDib::difference_rect(sglDib * other, int x, int y)
{
    combine_rect(*this, other, x, y, sglDifferenceFormula());
}
