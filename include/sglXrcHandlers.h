#pragma once

class wxXmlResource;

/// Teaches `resource` the toolkit's classes and those that this library adds. Needs a display; called before
/// the first dialog is loaded.
void sgl_add_xrc_handlers(wxXmlResource & resource);
