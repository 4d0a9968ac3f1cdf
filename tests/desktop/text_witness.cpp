#include "tests/desktop/text_witness.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <limits>

namespace corvana::prova {

namespace {

/// Of the ground this part may be closer to the letters: a border, a line of the staff.
constexpr double parteTrascurata = 0.05;

double Luminanza(const QColor& colore) {
    const auto canale = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * canale(colore.redF()) + 0.7152 * canale(colore.greenF()) +
           0.0722 * canale(colore.blueF());
}

/// What shows of a colour that is seen through.
QColor Sopra(const QColor& colore, const QColor& fondo, double opacita) {
    const double quanto = colore.alphaF() * opacita;
    const auto canale = [quanto](int sopra, int sotto) {
        return static_cast<int>(std::lround(sotto + (sopra - sotto) * quanto));
    };
    return {canale(colore.red(), fondo.red()), canale(colore.green(), fondo.green()),
            canale(colore.blue(), fondo.blue())};
}

/// Paints all but the texts into an image, and notes these.
class Lettore final : public QPaintEngine {
public:
    explicit Lettore(QSize misura)
        : QPaintEngine(AllFeatures), fondo_(misura, QImage::Format_ARGB32_Premultiplied) {
        fondo_.fill(Qt::white);
        pittore_.begin(&fondo_);
    }
    ~Lettore() override { pittore_.end(); }
    Lettore(const Lettore&) = delete;
    Lettore& operator=(const Lettore&) = delete;

    std::vector<TestoDipinto> testi;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& s) override {
        const auto mutato = s.state();
        if (mutato & DirtyTransform) pittore_.setTransform(s.transform());
        if (mutato & DirtyPen) pittore_.setPen(s.pen());
        if (mutato & DirtyBrush) pittore_.setBrush(s.brush());
        if (mutato & DirtyBrushOrigin) pittore_.setBrushOrigin(s.brushOrigin());
        if (mutato & DirtyFont) pittore_.setFont(s.font());
        if (mutato & DirtyBackground) pittore_.setBackground(s.backgroundBrush());
        if (mutato & DirtyBackgroundMode) pittore_.setBackgroundMode(s.backgroundMode());
        if (mutato & DirtyHints) {
            pittore_.setRenderHints(~QPainter::RenderHints(), false);
            pittore_.setRenderHints(s.renderHints());
        }
        if (mutato & DirtyCompositionMode) pittore_.setCompositionMode(s.compositionMode());
        if (mutato & DirtyOpacity) pittore_.setOpacity(s.opacity());
        Ritaglia(s);
    }

    void drawRects(const QRectF* r, int n) override { pittore_.drawRects(r, n); }
    void drawRects(const QRect* r, int n) override { pittore_.drawRects(r, n); }
    void drawLines(const QLineF* l, int n) override { pittore_.drawLines(l, n); }
    void drawLines(const QLine* l, int n) override { pittore_.drawLines(l, n); }
    void drawEllipse(const QRectF& r) override { pittore_.drawEllipse(r); }
    void drawEllipse(const QRect& r) override { pittore_.drawEllipse(r); }
    void drawPath(const QPainterPath& traccia) override { pittore_.drawPath(traccia); }
    void drawPoints(const QPointF* p, int n) override { pittore_.drawPoints(p, n); }
    void drawPoints(const QPoint* p, int n) override { pittore_.drawPoints(p, n); }
    void drawPolygon(const QPointF* p, int n, PolygonDrawMode modo) override {
        Spezzata(p, n, modo);
    }
    void drawPolygon(const QPoint* p, int n, PolygonDrawMode modo) override {
        Spezzata(p, n, modo);
    }
    void drawPixmap(const QRectF& r, const QPixmap& figura, const QRectF& parte) override {
        pittore_.drawPixmap(r, figura, parte);
    }
    void drawTiledPixmap(const QRectF& r, const QPixmap& figura, const QPointF& da) override {
        pittore_.drawTiledPixmap(r, figura, da);
    }
    void drawImage(const QRectF& r, const QImage& figura, const QRectF& parte,
                   Qt::ImageConversionFlags come) override {
        pittore_.drawImage(r, figura, parte, come);
    }

    void drawTextItem(const QPointF& dove, const QTextItem& scritta) override {
        QRectF inchiostro =
            QFontMetricsF(scritta.font()).tightBoundingRect(scritta.text()).translated(dove);
        // The layout knows how far the text reaches where the measure is a fraction off.
        inchiostro.setRight(std::min(inchiostro.right(), dove.x() + scritta.width()));
        if (scritta.text().trimmed().isEmpty() || inchiostro.isEmpty()) return;
        TestoDipinto letto;
        letto.testo = scritta.text();
        letto.pixel = scritta.font().pixelSize() * pittore_.transform().m22();
        const QRectF dipinto = pittore_.transform().mapRect(inchiostro);
        letto.dove = dipinto.toAlignedRect();
        letto.penna = pittore_.pen().color();
        letto.intero = Intero(inchiostro, dipinto);
        Confronta(letto);
        testi.push_back(letto);
    }

private:
    void Ritaglia(const QPaintEngineState& s) {
        const auto mutato = s.state();
        if (mutato & DirtyClipPath) pittore_.setClipPath(s.clipPath(), s.clipOperation());
        if (mutato & DirtyClipRegion) pittore_.setClipRegion(s.clipRegion(), s.clipOperation());
        if (mutato & DirtyClipEnabled) pittore_.setClipping(s.isClipEnabled());
    }

    template <class Punto>
    void Spezzata(const Punto* p, int n, PolygonDrawMode modo) {
        if (modo == PolylineMode)
            pittore_.drawPolyline(p, n);
        else
            pittore_.drawPolygon(p, n, modo == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    }

    /// The edge of a letter may lie on the last pixel that is shown.
    bool Intero(const QRectF& inchiostro, const QRectF& dove) const {
        const auto stretto = [](const QRectF& r) {
            const double x = std::min(1.0, r.width() / 3), y = std::min(1.0, r.height() / 3);
            return r.adjusted(x, y, -x, -y);
        };
        const bool tagliato =
            pittore_.hasClipping() && !pittore_.clipBoundingRect().contains(stretto(inchiostro));
        const QRectF visto = systemClip().isEmpty() ? fondo_.rect() : systemClip().boundingRect();
        return !tagliato && visto.contains(stretto(dove));
    }

    void Confronta(TestoDipinto& letto) const {
        struct Punto {
            double contrasto;
            QColor fondo;
        };
        std::vector<Punto> punti;
        const QRect sotto = letto.dove & fondo_.rect();
        for (int y = sotto.top(); y <= sotto.bottom(); ++y)
            for (int x = sotto.left(); x <= sotto.right(); ++x) {
                const QColor fondo = fondo_.pixelColor(x, y);
                punti.push_back(
                    {Contrasto(Sopra(letto.penna, fondo, pittore_.opacity()), fondo), fondo});
            }
        if (punti.empty()) return;
        const auto peggiore =
            punti.begin() +
            static_cast<std::ptrdiff_t>(parteTrascurata * static_cast<double>(punti.size()));
        std::nth_element(punti.begin(), peggiore, punti.end(),
                         [](const Punto& a, const Punto& b) { return a.contrasto < b.contrasto; });
        letto.contrasto = peggiore->contrasto;
        letto.fondo = peggiore->fondo;
    }

    QImage fondo_;
    QPainter pittore_;
};

class Tela final : public QPaintDevice {
public:
    explicit Tela(QSize misura) : misura_(misura), lettore_(misura) {}
    QPaintEngine* paintEngine() const override { return &lettore_; }
    std::vector<TestoDipinto>& Testi() { return lettore_.testi; }

protected:
    int metric(PaintDeviceMetric quale) const override {
        constexpr int puntiPerPollice = 96;
        switch (quale) {
            case PdmWidth: return misura_.width();
            case PdmHeight: return misura_.height();
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY: return puntiPerPollice;
            case PdmDepth: return 32;
            case PdmNumColors: return std::numeric_limits<int>::max();
            case PdmDevicePixelRatio: return 1;
            default: return QPaintDevice::metric(quale);
        }
    }

private:
    QSize misura_;
    mutable Lettore lettore_;
};

}  // namespace

double Contrasto(const QColor& una, const QColor& altra) {
    const auto [scura, chiara] = std::minmax({Luminanza(una), Luminanza(altra)});
    return (chiara + 0.05) / (scura + 0.05);
}

std::vector<TestoDipinto> LeggiDipinto(QWidget& widget) {
    Tela tela(widget.size());
    QPainter pittore(&tela);
    widget.render(&pittore, QPoint());
    pittore.end();
    return std::move(tela.Testi());
}

}  // namespace corvana::prova
