#include "desktop/chart_keys_view.h"

#include <cstdlib>

#include "desktop/chart_painter.h"
#include "desktop/chart_signs.h"
#include "desktop/music_font.h"
#include "desktop/theme.h"
#include "utilities/options_keys.h"

namespace corvana {

namespace {

// Designed pixels.
constexpr double altezzaTestata = 54, sottoModo = 24;
constexpr double altezzaRiga = 26, primaDeiGradi = 8;
constexpr double fineAccidenti = 80, fineMaggiori = 190, fineMinori = 300, inizioTon = 464;
constexpr double sogliaMaggiore = 135, sogliaMinore = 245;  ///< where the names end
constexpr double altezzaAccidente = 5.4;                    ///< a space of one beside letters
constexpr Qt::Alignment aDestra = Qt::AlignRight | Qt::AlignVCenter;
constexpr Qt::Alignment aSinistra = Qt::AlignLeft | Qt::AlignVCenter;

QString SoloNome(const NomeTonica& tonica) {
    return QString::fromUtf8(tonica.nome.data(), static_cast<qsizetype>(tonica.nome.size()));
}

double LarghezzaAccidente(int alterazione, double spazio) {
    if (alterazione == 0) return 0;
    return SegniDellaTavola().alterazione(alterazione > 0).boundingRect().width() * spazio;
}

void DipingiAccidente(QPainter& p, int alterazione, const QPointF& dove, double spazio) {
    if (alterazione != 0)
        DipingiSegnoTavola(p, SegniDellaTavola().alterazione(alterazione > 0), dove, spazio);
}

/// Beside letters in whose middle `dove` lies: a flat's belly stands on their foot.
void DipingiAccidenteNelTesto(QPainter& p, int alterazione, const QPointF& dove, double spazio) {
    const double giu = alterazione < 0 ? 0.35 * spazio : 0;
    DipingiAccidente(p, alterazione, dove + QPointF(0, giu), spazio);
}

/// The name and its accidental, which end at `fine`.
void DipingiTonica(QPainter& p, const NomeTonica& tonica, double fine, double y) {
    constexpr double stacco = 2;
    const double largo = LarghezzaAccidente(tonica.alterazione, altezzaAccidente);
    DipingiAccidenteNelTesto(p, tonica.alterazione, {fine - largo, y - 1}, altezzaAccidente);
    const double fineNome = fine - (largo > 0 ? largo + stacco : 0);
    Scrivi(p, {fineNome - 60, y - altezzaRiga / 2, 60, altezzaRiga}, aDestra, SoloNome(tonica),
           {15, true});
}

void DipingiNumero(QPainter& p, int accidenti, double y) {
    const double mezzo = fineAccidenti / 2;
    const QString numero = QString::number(std::abs(accidenti));
    const QRectF prima(mezzo - 30, y - altezzaRiga / 2, 28, altezzaRiga);
    if (accidenti == 0) {
        Scrivi(p, prima.translated(16, 0), Qt::AlignCenter, numero);
        return;
    }
    Scrivi(p, prima, aDestra, numero);
    DipingiAccidenteNelTesto(p, accidenti, {mezzo + 3, y - 1}, altezzaAccidente);
}

void DipingiRigaSpecchio(QPainter& p, const RigaSpecchio& riga, double y, double larghezza) {
    // The steps between no accidentals, sharps and flats are to be seen.
    const bool ultima = riga.accidenti == 0 || riga.accidenti == 7 || riga.accidenti == -7;
    const double mezzo = y + altezzaRiga / 2;
    DipingiNumero(p, riga.accidenti, mezzo);
    DipingiTonica(p, riga.maggiore, sogliaMaggiore, mezzo);
    DipingiTonica(p, riga.minore, sogliaMinore, mezzo);
    DipingiFilo(p, {0, y + altezzaRiga}, {larghezza, y + altezzaRiga},
                ultima ? tinta::filoForte : tinta::filo, ultima ? 1.6 : 1);
}

/// What the last button opens.
void DipingiRigaGradi(QPainter& p, double y) {
    const char* const numeri[] = {"I", "II", "III", "IV", "V", "VI", "VII"};
    constexpr double colonna = inizioTon / 7;
    double x = 0;
    for (const char* numero : numeri) {
        Scrivi(p, {x, y, colonna, altezzaRiga}, Qt::AlignCenter, QString::fromLatin1(numero),
               {15, true, true});
        x += colonna;
    }
}

QString InTesto(const NomeTonica& tonica) {
    QString nome = SoloNome(tonica);
    if (tonica.alterazione > 0) nome += u'\u266F';
    if (tonica.alterazione < 0) nome += u'\u266D';
    return nome;
}

double MisuraTonica(const NomeTonica& tonica, const LettereTavola& lettere, double spazio) {
    const double accidente = LarghezzaAccidente(tonica.alterazione, spazio);
    return LarghezzaScritta(SoloNome(tonica), lettere) + (accidente > 0 ? accidente + 2 : 0);
}

void DipingiArmatura(QPainter& p, const RigoTavola& rigo, ChiaveRigo chiave, int accidenti) {
    constexpr double inizio = 4.6, passo = 1.15;  ///< spaces
    DipingiRigo(p, rigo);
    DipingiChiaveTavola(p, rigo, chiave);
    double x = rigo.da + inizio * rigo.spazio;
    for (const int gradino : PassiArmatura(accidenti, chiave)) {
        DipingiAccidente(p, accidenti, {x, rigo.Passo(gradino)}, rigo.spazio);
        x += passo * rigo.spazio;
    }
}

/// Two names with a dash between them in the middle.
void DipingiCoppia(QPainter& p, const NomeTonica& prima, const NomeTonica& seconda,
                   const QPointF& mezzo, const LettereTavola& lettere) {
    const double spazio = lettere.pixel * 0.35, stacco = lettere.pixel * 0.9;
    const QRectF riga(mezzo.x() - 100, mezzo.y() - 20, 200, 40);
    Scrivi(p, riga, Qt::AlignCenter, QStringLiteral("–"), {lettere.pixel, false, true});
    double x = mezzo.x() - stacco - MisuraTonica(prima, lettere, spazio);
    for (const NomeTonica* nome : {&prima, &seconda}) {
        const double largo =
            Scrivi(p, riga.translated(x - riga.left(), 0), aSinistra, SoloNome(*nome), lettere);
        DipingiAccidenteNelTesto(p, nome->alterazione, {x + largo + 2, mezzo.y() - 1}, spazio);
        x = mezzo.x() + stacco;
    }
}

/// The two keys' Latin names, and beneath them their letters.
void DipingiIntestazione(QPainter& p, const RigaSpecchio& riga, double larghezza) {
    DipingiCoppia(p, riga.maggiore, riga.minore, {larghezza / 2, 46}, {22, true});
    DipingiCoppia(p, {riga.letteraMaggiore, riga.maggiore.alterazione},
                  {riga.letteraMinore, riga.minore.alterazione}, {larghezza / 2, 80},
                  {16, false, true});
}

}  // namespace

void VistaSpecchio::Dipingi(QPainter& p, const QRectF& area, const Tocco&) {
    p.scale(Scala(), Scala());
    const double larghezza = area.width() / Scala();
    constexpr double rientro = 10;
    DipingiFilo(p, {fineAccidenti + rientro, sottoModo}, {fineMinori - rientro, sottoModo},
                tinta::filoForte);
    double y = altezzaTestata;
    DipingiFilo(p, {0, y}, {larghezza, y}, tinta::filoForte, 1.6);
    for (const RigaSpecchio& riga : specchioTonalita) {
        DipingiRigaSpecchio(p, riga, y, larghezza);
        y += altezzaRiga;
    }
    for (const double x : {fineAccidenti, fineMaggiori, fineMinori, inizioTon})
        DipingiFilo(p, {x, altezzaTestata}, {x, y}, tinta::filo);
    DipingiRigaGradi(p, y + primaDeiGradi);
}

VistaArmatura::VistaArmatura(const CopiaControllo& copia, Mittente mittente)
    : VistaDipinta(copia, mittente), riga_(Stato().nome.mid(3).toUInt() - 1) {
    const RigaSpecchio& riga = specchioTonalita.at(riga_);
    PonNomeDetto(InTesto(riga.maggiore) + QStringLiteral(" – ") + InTesto(riga.minore));
}

void VistaArmatura::Dipingi(QPainter& p, const QRectF& area, const Tocco& tocco) {
    DipingiFondo(p, area, Stato(), Scala(), tocco);
    p.scale(Scala(), Scala());
    const QSizeF misura = area.size() / Scala();
    const RigaSpecchio& riga = specchioTonalita.at(riga_);
    DipingiIntestazione(p, riga, misura.width());
    constexpr double margine = 34, spazio = 14;
    const RigoTavola violino{margine, misura.width() - 20, 206, spazio};
    const RigoTavola basso{margine, misura.width() - 20, 356, spazio};
    DipingiArmatura(p, violino, ChiaveRigo::Violino, riga.accidenti);
    DipingiArmatura(p, basso, ChiaveRigo::Basso, riga.accidenti);
    for (const double x : {violino.da, violino.a})
        DipingiFilo(p, {x, violino.Passo(8)}, {x, basso.Passo(0)}, tinta::inchiostro, 1.4);
    const double alto = basso.Passo(0) - violino.Passo(8);
    DipingiSegnoTavola(p, TracciaGraffa(alto, 9), {margine - 4, violino.Passo(8)}, 1);
}

void VistaGrado::Dipingi(QPainter& p, const QRectF& area, const Tocco&) {
    constexpr double colonna = 52;
    p.scale(Scala(), Scala());
    const QSizeF misura = area.size() / Scala();
    const QString testo = InQt(Stato().Caption).simplified();
    const qsizetype fine = testo.indexOf(QLatin1Char(' '));
    Scrivi(p, {0, 0, colonna, misura.height()}, aSinistra, testo.left(fine), {17, true});
    if (fine >= 0)
        Scrivi(p, {colonna, 0, misura.width() - colonna, misura.height()}, aSinistra,
               testo.mid(fine + 1), {17});
}

}  // namespace corvana
