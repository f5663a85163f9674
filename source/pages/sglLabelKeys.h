#pragma once

class wxWindow;

/// Makes Alt and the mnemonic of a label give the focus to the format box that stands behind the label. The
/// toolkit does so by itself for the platform's own controls only.
void sgl_add_label_keys(wxWindow & page);
