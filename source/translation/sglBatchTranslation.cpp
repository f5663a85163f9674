#include "sglBatchTranslation.h"

#include "s2s/s2sBatchWrapper.h"

int sglBatchTranslation::invalid() const
{
    int const count = num_input_files();
    return sglTranslation::invalid() || num_output_files() != count || num_input_resource_tables() != count ||
           num_input_formats() != count || num_output_resource_tables() != count ||
           num_output_formats() != count;
}

void sglBatchTranslation::create_wrapper()
{
    s2sTranslationElementscoPageArr translations;
    for (int i = 0; i < num_input_files(); ++i) {
        s2sTranslatorElementscoPageArr input;
        input.append(input_elements(i));
        translations.append(s2sTranslationElements(input, output_elements(i)));
    }
    set_wrapper(std::make_unique<s2sBatchWrapper>(context(), *application_information(), channel(),
                                                  translator_loader(), output_connector(), error_connector(),
                                                  translations));
}

void sglBatchTranslation::remove_translation(int index)
{
    if (index >= 0 && index < num_output_files())
        remove_entry(index);
}
