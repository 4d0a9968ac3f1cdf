#include <gtest/gtest.h>

#include <QListWidget>
#include <QMainWindow>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionViewItem>

#include "desktop/row_painter.h"
#include "desktop/theme.h"
#include "tests/desktop/stage.h"

namespace corvana::prova {
namespace {

QListWidget& ListaDi(Palco& palco) {
    return Trova(palco.scrivania, "lista").Come<QListWidget>();
}

void CliccaRiga(QListWidget& lista, int riga) {
    Clicca(*lista.viewport(), lista.visualItemRect(lista.item(riga)).center());
}

TEST(Lista, ClickingARowSelectsItAndTellsIt) {
    Palco palco;
    CliccaRiga(ListaDi(palco), 3);
    EXPECT_EQ(palco.Diario(), (Righe{"lista click"}));
    palco.NellaLogica([](FormDiProva& form) { EXPECT_EQ(form.lista.ListIndex(), 3); });
}

TEST(Lista, ClickingTheSelectedRowIsAClickToo) {
    Palco palco;
    CliccaRiga(ListaDi(palco), 1);
    palco.Diario();
    CliccaRiga(ListaDi(palco), 1);
    EXPECT_FALSE(palco.Diario().empty());
}

TEST(Lista, TheArrowKeysSelect) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.lista.ListIndex = 0; });
    ListaDi(palco).setFocus();
    Batti(palco.scrivania, Qt::Key_Down);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 40", "lista click", "su 40"}));
    EXPECT_EQ(ListaDi(palco).currentRow(), 1);
}

TEST(Lista, EnterIsADoubleClickOnTheChosenRow) {
    Palco palco;
    ListaDi(palco).setFocus();
    Batti(palco.scrivania, Qt::Key_Return);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 13", "su 13"}));
    palco.NellaLogica([](FormDiProva& form) { form.lista.ListIndex = 3; });
    Batti(palco.scrivania, Qt::Key_Return);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 13", "lista doppio", "su 13"}));
    Batti(palco.scrivania, Qt::Key_Enter);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 13", "lista doppio", "su 13"}));
}

TEST(Lista, ASelectionByTheLogicIsShownAndNotToldBack) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) { form.lista.ListIndex = 4; });
    EXPECT_EQ(ListaDi(palco).currentRow(), 4);
    palco.NellaLogica([](FormDiProva& form) { form.lista.ListIndex = -1; });
    EXPECT_EQ(ListaDi(palco).currentRow(), -1);
    EXPECT_EQ(palco.Diario(), Righe{});
}

TEST(Lista, LettersDontSearchTheRows) {
    Palco palco;
    ListaDi(palco).setFocus();
    Batti(palco.scrivania, Qt::Key_F);
    EXPECT_EQ(palco.Diario(), (Righe{"giu 70", "su 70"}));
    EXPECT_EQ(ListaDi(palco).currentRow(), -1);
}

TEST(Lista, NewRowsKeepTheSelection) {
    Palco palco;
    palco.NellaLogica([](FormDiProva& form) {
        form.lista.ListIndex = 1;
        form.lista.PonRiga(1, "D");
        form.lista.AddItem("Sol");
    });
    EXPECT_EQ(ListaDi(palco).count(), 6);
    EXPECT_EQ(ListaDi(palco).item(1)->text(), "D");
    EXPECT_EQ(ListaDi(palco).currentRow(), 1);
    palco.NellaLogica([](FormDiProva& form) { form.lista.Clear(); });
    EXPECT_EQ(ListaDi(palco).count(), 0);
}

TEST(Lista, NewRowsKeepWhatTheUserChose) {
    Palco palco;
    CliccaRiga(ListaDi(palco), 3);
    palco.NellaLogica([](FormDiProva& form) { form.lista.AddItem("Sol"); });
    EXPECT_EQ(ListaDi(palco).currentRow(), 3);
}

/// Each row that is seen at all is seen whole.
void ControllaRigheIntere(QListWidget& lista, const char* quando) {
    const QRect vista = lista.viewport()->rect();
    int viste = 0;
    for (int i = 0; i < lista.count(); ++i) {
        const QRect riga = lista.visualItemRect(lista.item(i));
        if (!riga.intersects(vista)) continue;
        ++viste;
        EXPECT_TRUE(vista.contains(riga)) << quando << ", row " << i;
    }
    EXPECT_GE(viste, 6) << quando;
}

TEST(Lista, ShowsWholeRowsAtEveryScaleAndWhereverItIsScrolledTo) {
    Palco palco([](FormDiProva& form) {
        form.lista.Height = 2115;
        for (int i = 0; i < 40; ++i)
            form.lista.AddItem(std::to_string(i));
    });
    QListWidget& lista = ListaDi(palco);
    for (const double volte : {1.0, 1.25, 1.5, 2.0, 2.3, 3.0}) {
        Ingrandisci(*palco.scrivania.Davanti(), volte);
        const std::string quando = std::to_string(volte) + " times";
        lista.scrollToTop();
        ControllaRigheIntere(lista, (quando + ", top").c_str());
        QScrollBar& scorrimento = *lista.verticalScrollBar();
        scorrimento.setValue(scorrimento.value() + 1);
        ControllaRigheIntere(lista, (quando + ", a step further").c_str());
        lista.scrollToBottom();
        ControllaRigheIntere(lista, (quando + ", bottom").c_str());
    }
}

TEST(Lista, ItsRowsGrowWithTheWindow) {
    Palco palco;
    EXPECT_EQ(ListaDi(palco).sizeHintForRow(0), 20);
    QMainWindow& finestra = palco.scrivania.Davanti()->Finestra();
    finestra.resize(finestra.width() * 2, finestra.height() * 2);
    EXPECT_TRUE(Aspetta(
        [&] { return ListaDi(palco).visualItemRect(ListaDi(palco).item(0)).height() >= 38; }));
}

/// The row's picture, of a list whose rows have that style.
QImage RigaDipinta(const char* stile, const QString& testo) {
    Aspetto aspetto;
    aspetto.stile = ParoleDi(stile);
    QStyleOptionViewItem o;
    o.rect = QRect(0, 0, 120, 20);
    o.state = QStyle::State_Enabled;
    o.text = testo;
    QImage foto(o.rect.size(), QImage::Format_RGB32);
    foto.fill(tinta::carta);
    QPainter p(&foto);
    DipingiRiga(p, o, aspetto, 1);
    return foto;
}

TEST(Lista, AMelodyMayBeCalledADash) {
    for (const char* nome : {"-", "---"}) {
        const QImage filo = RigaDipinta("separata", nome), scritta = RigaDipinta("", nome);
        EXPECT_NE(filo.pixelColor(100, 10), tinta::carta);
        EXPECT_EQ(scritta.pixelColor(100, 10), tinta::carta);
        EXPECT_NE(scritta, RigaDipinta("", {})) << "nothing is written";
    }
}

}  // namespace
}  // namespace corvana::prova
