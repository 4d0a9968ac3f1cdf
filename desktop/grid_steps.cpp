#include "desktop/grid_steps.h"

#include <algorithm>
#include <optional>
#include <tuple>

#include "desktop/painted_view.h"

namespace corvana {

namespace {

const QLatin1String prefissoGriglia("griglia:");

struct Direzione {
    int tasto;
    int x, y;     ///< 0 stays in the row, or goes to the nearest of it
    bool ultima;  ///< the farthest one that way
};

constexpr Direzione direzioni[] = {{Qt::Key_Left, -1, 0, false}, {Qt::Key_Right, 1, 0, false},
                                   {Qt::Key_Up, 0, -1, false},   {Qt::Key_Down, 0, 1, false},
                                   {Qt::Key_Home, -1, 0, true},  {Qt::Key_End, 1, 0, true}};

bool InRiga(const QRect& uno, const QRect& altro) {
    return uno.top() <= altro.center().y() && altro.center().y() <= uno.bottom();
}

/// How far it is to there in that direction, the smaller the sooner; nothing when it lies in
/// another.
std::optional<std::tuple<int, int>> Distanza(const QRect& da, const QRect& a, const Direzione& d) {
    const QPoint via = a.center() - da.center();
    if (d.x != 0) {
        if (!InRiga(da, a) || via.x() * d.x <= 0) return {};
        return std::tuple(0, d.ultima ? -via.x() * d.x : via.x() * d.x);
    }
    if (InRiga(da, a) || via.y() * d.y <= 0) return {};
    return std::tuple(via.y() * d.y, std::abs(via.x()));
}

}  // namespace

QString GrigliaDi(const Aspetto& aspetto) {
    for (const QString& parola : aspetto.stile)
        if (parola.startsWith(prefissoGriglia)) return parola.mid(prefissoGriglia.size());
    return {};
}

std::vector<VistaDipinta*> Griglia(const VistaDipinta& vista) {
    std::vector<VistaDipinta*> griglia;
    if (!vista.Padre()) return griglia;
    for (Vista* vicina : vista.Padre()->Figlie())
        if (vista.Insieme(*vicina) && vicina->Fermata() && vicina->Usabile())
            griglia.push_back(static_cast<VistaDipinta*>(vicina));
    return griglia;
}

int PassoNellaGriglia(const std::vector<QRect>& posti, int da, int tasto) {
    const auto* direzione = std::find_if(std::begin(direzioni), std::end(direzioni),
                                         [=](const Direzione& d) { return d.tasto == tasto; });
    if (direzione == std::end(direzioni)) return -1;
    int scelto = da;
    std::optional<std::tuple<int, int>> vicino;
    for (std::size_t i = 0; i < posti.size(); ++i) {
        const auto distanza =
            Distanza(posti.at(static_cast<std::size_t>(da)), posti[i], *direzione);
        if (!distanza || (vicino && *vicino <= *distanza)) continue;
        vicino = distanza;
        scelto = static_cast<int>(i);
    }
    return scelto;
}

bool VaNellaGriglia(const VistaDipinta& vista, int tasto) {
    const auto griglia = Griglia(vista);
    const auto qui = std::find(griglia.begin(), griglia.end(), &vista);
    if (qui == griglia.end()) return false;
    std::vector<QRect> posti;
    posti.reserve(griglia.size());
    for (const VistaDipinta* vicina : griglia)
        posti.push_back(vicina->Posto());
    const int passo = PassoNellaGriglia(posti, static_cast<int>(qui - griglia.begin()), tasto);
    if (passo < 0) return false;
    griglia[static_cast<std::size_t>(passo)]->PrendiFuoco(Qt::OtherFocusReason);
    return true;
}

}  // namespace corvana
