#include "core/Images.h"
#include "support/Seance.h"

#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>

namespace {

struct Atelier : Seance
{
    Atelier()
    {
        demarrer();
        ouvrir("Menu(3)", "Outils(2)", "Acquisition");
        QTRY_VERIFY(trouver<QComboBox>("Sources", "Acquisition")->count() > 0);
    }
    static QString message() { return trouver<QLabel>("Message", "Acquisition")->text(); }
    static bool actif(const char *nom) { return trouver<QWidget>(nom, "Acquisition")->isEnabled(); }
    QString photo1() const
    {
        return Bac::valeur(QStringLiteral("SELECT Photo1 FROM LAlbums WHERE TAlbum = ?"), {texteDe("TAlbum")})
            .toString();
    }
};

void deposer(QWidget *cadre, const QString &chemin)
{
    QMimeData donnees;
    donnees.setUrls({QUrl::fromLocalFile(chemin)});
    QDragEnterEvent entree({5, 5}, Qt::CopyAction, &donnees, Qt::LeftButton, {});
    QApplication::sendEvent(cadre, &entree);
    if (!entree.isAccepted())
        return;
    QDropEvent depot({5, 5}, Qt::CopyAction, &donnees, Qt::LeftButton, {});
    QApplication::sendEvent(cadre, &depot);
}

}

/// The workshop with the scanner that exists only in its driver, and pictures on the sheets.
class tst_acquisition : public QObject, private Gestes
{
    Q_OBJECT

private Q_SLOTS:
    void uneNumerisationDevientLaCouverture()
    {
        Atelier s;
        QVERIFY(
            Atelier::actif("Sources") && !Atelier::actif("Utiliser(0)") && !Atelier::actif("Btn_ScanS(3)"));
        cliquer("Btn_ScanS(0)", "Acquisition");
        QTRY_VERIFY(Atelier::actif("Utiliser(0)"));
        const QSize page = QGuiApplication::clipboard()->image().size();
        QVERIFY(!page.isEmpty());
        cliquer("Btn_ScanS(3)", "Acquisition");
        cliquer("Utiliser(0)", "Acquisition");
        const QString nom = s.photo1();
        QVERIFY2(nom.endsWith(".jpg") && nom.startsWith(texteDe("TAlbum").left(5)), qPrintable(nom));
        QCOMPARE(QImage(s.bac.chemin("images/") + nom).size(), page.transposed());
        QTRY_COMPARE(trouver<QWidget>("Photo1")->toolTip(), nom.toHtmlEscaped());
        // Undo gives the cover back; the new file stays.
        cliquer("Defaire");
        QTRY_VERIFY(s.photo1() != nom);
        QVERIFY(QFile::exists(s.bac.chemin("images/") + nom));
        QVERIFY(s.boites.textes.isEmpty());
    }

    void uneImageSeTourneEtSEnregistre()
    {
        Atelier s;
        const QString couverture = Images::Trouver(s.photo1());
        const QSize taille = QImage(couverture).size();
        s.boites.fichiers << s.bac.collection() << couverture << s.bac.chemin("sortie.bmp");
        cliquer("Btn_ScanS(1)", "Acquisition");
        QVERIFY(!Atelier::message().isEmpty() && !Atelier::actif("Btn_ScanS(2)"));
        cliquer("Btn_ScanS(1)", "Acquisition");
        for (const char *outil :
            {"Btn_ScanS(3)", "Btn_ScanS(5)", "Btn_ScanS(6)", "Btn_ScanS(4)", "Btn_ScanS(4)"})
            cliquer(outil, "Acquisition");
        cliquer("Btn_ScanS(2)", "Acquisition");
        QCOMPARE(QImage(s.bac.chemin("sortie.bmp")).size(), taille.transposed());
        QVERIFY(QFile::exists(s.bac.chemin("temp.bmp")));
        // As after a list that found none; the driver itself never forgets one that it found.
        trouver<QComboBox>("Sources", "Acquisition")->clear();
        cliquer("Btn_ScanS(0)", "Acquisition");
        QCOMPARE(Atelier::message(), texte(Txt::VerifierScanner));
    }

    void unCadrePrendCeQuOnYMet()
    {
        Atelier s;
        auto *cadre = trouver<QWidget>("Photo1");
        const QString avant = s.photo1();
        QImage rouge(30, 40, QImage::Format_RGB32);
        rouge.fill(Qt::red);
        QVERIFY(rouge.save(s.bac.chemin("rouge.png")));
        deposer(cadre, s.bac.chemin("rouge.png"));
        QCOMPARE(s.photo1(), "rouge.png");
        // Another picture of that name gets one of its own; a file that is none is refused.
        rouge.fill(Qt::blue);
        QVERIFY(rouge.save(s.bac.chemin("rouge.png")));
        deposer(cadre, s.bac.chemin("rouge.png"));
        QCOMPARE(s.photo1(), "rouge (2).png");
        deposer(cadre, s.bac.collection());
        QTRY_COMPARE(s.boites.textes.size(), 1);
        QVERIFY2(s.boites.textes[0].contains(s.bac.collection()), "the refusal names the file");
        QCOMPARE(s.photo1(), "rouge (2).png");

        QGuiApplication::clipboard()->setImage(rouge);
        QTest::keyClick(cadre, Qt::Key_V, Qt::ControlModifier);
        QVERIFY(s.photo1().startsWith(texteDe("TAlbum").left(5)));
        for (int i = 0; i < 3; ++i) {
            QTRY_VERIFY(trouver<QWidget>("Defaire")->isEnabled());
            cliquer("Defaire");
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(s.photo1(), avant);
    }
};

JOUER(tst_acquisition)
#include "tst_acquisition.moc"
