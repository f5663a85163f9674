#include "s2s/s2sFileGuard.h"

#include "s2s/s2sFiles.h"

void s2sFileGuard::add(s2sTranslationElements const & elements)
{
    for (auto const & input : elements.input_elements()) {
        m_inputs.emplace_back(input.file().str());
        m_protections.emplace_back(input.file());
    }
    m_output_folders.insert(s2s_real_place(elements.output_elements().file().str()).parent_path());
}
