#include "pdf/pdf_document.h"

#include <memory>
#include <stdexcept>

#include <cairo-pdf.h>
#include <pango/pangocairo.h>

namespace tav {
namespace {

constexpr double kPointsPerTwip = 1 / kTwipsPerPoint;
constexpr const char* kStandIn = "Liberation Serif";  // has the widths of Times New Roman
// Any moment of its own would make each run's bytes different.
constexpr const char* kNoDate = "";

template <auto Release>
struct Releaser {
    template <class T>
    void operator()(T* object) const {
        Release(object);
    }
};
using Surface = std::unique_ptr<cairo_surface_t, Releaser<cairo_surface_destroy>>;
using Canvas = std::unique_ptr<cairo_t, Releaser<cairo_destroy>>;
using Layout = std::unique_ptr<PangoLayout, Releaser<g_object_unref>>;
using FontDescription =
    std::unique_ptr<PangoFontDescription, Releaser<pango_font_description_free>>;
using Attributes = std::unique_ptr<PangoAttrList, Releaser<pango_attr_list_unref>>;
using FontOptions = std::unique_ptr<cairo_font_options_t, Releaser<cairo_font_options_destroy>>;

cairo_status_t Collect(void* closure, const unsigned char* data, unsigned int length) {
    static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

void Require(cairo_status_t status) {
    if (status != CAIRO_STATUS_SUCCESS) {
        throw std::runtime_error(std::string("the PDF could not be made: ") +
                                 cairo_status_to_string(status));
    }
}

class PdfWriter {
  public:
    explicit PdfWriter(const std::string& title)
        : surface_(cairo_pdf_surface_create_for_stream(Collect, &bytes_, 1, 1)),
          canvas_(cairo_create(surface_.get())),
          layout_(pango_cairo_create_layout(canvas_.get())) {
        const auto set = [&](cairo_pdf_metadata_t item, const char* text) {
            cairo_pdf_surface_set_metadata(surface_.get(), item, text);
        };
        set(CAIRO_PDF_METADATA_TITLE, title.c_str());
        set(CAIRO_PDF_METADATA_CREATOR, "TAV Dairy Cattle Program");
        set(CAIRO_PDF_METADATA_CREATE_DATE, kNoDate);
        SetUpLayout();
    }

    void Draw(const ReportPage& page) {
        cairo_pdf_surface_set_size(surface_.get(), page.Width * kPointsPerTwip,
                                   page.Height * kPointsPerTwip);
        for (const Rule& rule : page.Rules)
            Draw(rule);
        for (const TextRun& run : page.Runs)
            Draw(run);
        cairo_show_page(canvas_.get());
    }

    std::string Take() {
        Require(cairo_status(canvas_.get()));
        cairo_surface_finish(surface_.get());
        Require(cairo_surface_status(surface_.get()));
        return std::move(bytes_);
    }

  private:
    // Letters stand where their widths put them: no hinting, no kerning, no ligatures.
    void SetUpLayout() {
        PangoContext* const context = pango_layout_get_context(layout_.get());
        const FontOptions options(cairo_font_options_create());
        cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
        cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
        pango_cairo_context_set_font_options(context, options.get());
        pango_context_set_round_glyph_positions(context, FALSE);
        pango_layout_set_single_paragraph_mode(layout_.get(), TRUE);
        const Attributes attributes(pango_attr_list_new());
        pango_attr_list_insert(attributes.get(),
                               pango_attr_font_features_new("kern=0, liga=0, clig=0"));
        pango_layout_set_attributes(layout_.get(), attributes.get());
    }

    void Draw(const Rule& rule) {
        cairo_set_line_width(canvas_.get(), rule.Thickness * kPointsPerTwip);
        cairo_set_line_cap(canvas_.get(), CAIRO_LINE_CAP_SQUARE);
        cairo_move_to(canvas_.get(), rule.X1 * kPointsPerTwip, rule.Y1 * kPointsPerTwip);
        cairo_line_to(canvas_.get(), rule.X2 * kPointsPerTwip, rule.Y2 * kPointsPerTwip);
        cairo_stroke(canvas_.get());
    }

    void Draw(const TextRun& run) {
        SetFont(run);
        pango_layout_set_text(layout_.get(), run.Text.data(), static_cast<int>(run.Text.size()));
        PangoLayoutLine* const line = pango_layout_get_line_readonly(layout_.get(), 0);
        PangoRectangle extents;
        pango_layout_line_get_extents(line, nullptr, &extents);
        const double drawn = static_cast<double>(extents.width) / PANGO_SCALE;
        const double room = run.Width * kPointsPerTwip;
        cairo_save(canvas_.get());
        cairo_translate(canvas_.get(), run.X * kPointsPerTwip, run.Baseline * kPointsPerTwip);
        // A font that stands in for Times may be wider; its text keeps to its room.
        if (drawn > room * 1.001) cairo_scale(canvas_.get(), room / drawn, 1);
        cairo_move_to(canvas_.get(), 0, 0);
        pango_cairo_show_layout_line(canvas_.get(), line);
        cairo_restore(canvas_.get());
    }

    void SetFont(const TextRun& run) {
        const FontDescription font(pango_font_description_new());
        const std::string families = run.FontName + "," + kStandIn;
        pango_font_description_set_family(font.get(), families.c_str());
        const TextStyle& style = run.Style;
        pango_font_description_set_absolute_size(font.get(),
                                                 static_cast<double>(style.Size) * PANGO_SCALE);
        pango_font_description_set_weight(font.get(),
                                          style.Bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
        pango_font_description_set_style(font.get(),
                                         style.Italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
        pango_layout_set_font_description(layout_.get(), font.get());
    }

    std::string bytes_;
    Surface surface_;
    Canvas canvas_;
    Layout layout_;
};

}  // namespace

std::string PdfOf(const ReportDocument& document) {
    PdfWriter writer(document.Title);
    for (const ReportPage& page : document.Pages)
        writer.Draw(page);
    return writer.Take();
}

}  // namespace tav
