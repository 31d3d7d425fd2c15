#pragma once

#include <cairo.h>
#include <pango/pangocairo.h>

#include <memory>
#include <string>

#include "results/PageLayout.h"

namespace verdalis {

// Owning handles for Cairo and Pango objects.

struct CairoDeleter {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
};

struct GObjectDeleter {
  void operator()(void* object) const { g_object_unref(object); }
};

using CairoSurface = std::unique_ptr<cairo_surface_t, CairoDeleter>;
using CairoContext = std::unique_ptr<cairo_t, CairoDeleter>;
using PangoText = std::unique_ptr<PangoLayout, GObjectDeleter>;

/// A layout without hinting, so that texts are as wide on paper as measured, on every machine.
[[nodiscard]] PangoText makeText(cairo_t& context);

/// The text as valid UTF-8, which Pango requires.
[[nodiscard]] std::string validText(const std::string& text);

/// Sets text and font of a layout. The text stays on one line.
void setText(PangoLayout& layout, const std::string& text, const PageFont& font);

}  // namespace verdalis
