#include "pdf/pango.h"

#include <cmath>

namespace verdalis {
namespace {

constexpr const char* typeface = "Liberation Sans, Arial, Helvetica, sans-serif";

struct DescriptionDeleter {
  void operator()(PangoFontDescription* description) const { pango_font_description_free(description); }
};
struct AttributesDeleter {
  void operator()(PangoAttrList* list) const { pango_attr_list_unref(list); }
};
struct OptionsDeleter {
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};
struct BytesDeleter {
  void operator()(char* bytes) const { g_free(bytes); }
};

}  // namespace

PangoText makeText(cairo_t& context) {
  PangoText text(pango_cairo_create_layout(&context));
  PangoContext* const pango = pango_layout_get_context(text.get());
  const std::unique_ptr<cairo_font_options_t, OptionsDeleter> options(cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  pango_cairo_context_set_font_options(pango, options.get());
  pango_cairo_context_set_resolution(pango, 72);  // 72 dpi, so that font sizes and page units are both points
  pango_context_set_round_glyph_positions(pango, FALSE);
  pango_layout_set_single_paragraph_mode(text.get(), TRUE);
  return text;
}

std::string validText(const std::string& text) {
  const std::unique_ptr<char, BytesDeleter> valid(
      g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())));
  return valid.get();
}

void setText(PangoLayout& layout, const std::string& text, const PageFont& font) {
  const std::unique_ptr<PangoFontDescription, DescriptionDeleter> description(pango_font_description_new());
  pango_font_description_set_family(description.get(), typeface);
  pango_font_description_set_size(description.get(), static_cast<int>(std::lround(font.size * PANGO_SCALE)));
  if (font.bold) pango_font_description_set_weight(description.get(), PANGO_WEIGHT_BOLD);
  if (font.italic) pango_font_description_set_style(description.get(), PANGO_STYLE_ITALIC);
  pango_layout_set_font_description(&layout, description.get());

  const std::unique_ptr<PangoAttrList, AttributesDeleter> attributes(pango_attr_list_new());
  if (font.underline) {
    pango_attr_list_insert(attributes.get(), pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
  }
  pango_layout_set_attributes(&layout, attributes.get());

  pango_layout_set_text(&layout, validText(text).c_str(), -1);
}

}  // namespace verdalis
