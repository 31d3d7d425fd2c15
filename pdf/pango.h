#pragma once

#include <cairo.h>
#include <pango/pangocairo.h>

#include <memory>
#include <string>

#include "results/PageLayout.h"

namespace verdalis {

// Handles of the drawing library that free what they hold.

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

/// A layout without hinting, so that a text is as wide on paper as it was measured, on every machine.
[[nodiscard]] PangoText makeText(cairo_t& context);

/// A text as valid UTF-8, which the library insists on.
[[nodiscard]] std::string validText(const std::string& text);

/// Gives a layout its text, on one line whatever it holds, and its font.
void setText(PangoLayout& layout, const std::string& text, const PageFont& font);

}  // namespace verdalis
