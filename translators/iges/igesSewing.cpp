#include "iges/igesSewing.h"

void igesSewing::sew(TDF_LabelSequence const &, std::string const &, Message_ProgressRange const &) {}
