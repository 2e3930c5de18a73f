// The least window: one list over a vector of the titles of a collection, read by the bare walk. It says "peinte"
// when the list is on screen: bulleo-fenetre FILE.

#include <QAbstractListModel>
#include <QApplication>
#include <QListView>
#include <QTimer>
#include <cstdio>
#include <sqlite3.h>
#include <unicode/ucol.h>
#include <vector>

namespace {

int comparer(void *collateur, int la, const void *a, int lb, const void *b)
{
    UErrorCode erreur = U_ZERO_ERROR;
    return ucol_strcollUTF8(static_cast<UCollator *>(collateur), static_cast<const char *>(a), la,
        static_cast<const char *>(b), lb, &erreur);
}

std::vector<QString> lire(const char *fichier)
{
    sqlite3 *db = nullptr;
    sqlite3_open_v2(fichier, &db, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
    UErrorCode erreur = U_ZERO_ERROR;
    UCollator *collateur = ucol_open("fr", &erreur);
    ucol_setStrength(collateur, UCOL_SECONDARY);
    sqlite3_create_collation_v2(db, "FRANCAIS", SQLITE_UTF8, collateur, comparer, nullptr);
    sqlite3_stmt *instruction = nullptr;
    sqlite3_prepare_v2(db, "SELECT NAlbum, TAlbum FROM LAlbums ORDER BY TAlbum", -1, &instruction, nullptr);
    std::vector<QString> titres;
    while (sqlite3_step(instruction) == SQLITE_ROW)
        titres.push_back(
            QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(instruction, 1))));
    sqlite3_finalize(instruction);
    sqlite3_close(db);
    ucol_close(collateur);
    return titres;
}

class Modele : public QAbstractListModel
{
public:
    explicit Modele(std::vector<QString> titres)
        : m_titres(std::move(titres))
    {
    }
    int rowCount(const QModelIndex &) const override { return static_cast<int>(m_titres.size()); }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(m_titres[static_cast<std::size_t>(index.row())])
                                       : QVariant();
    }

private:
    std::vector<QString> m_titres;
};

class Vue : public QListView
{
protected:
    void paintEvent(QPaintEvent *evenement) override
    {
        QListView::paintEvent(evenement);
        QTimer::singleShot(0, this, [] {
            std::fputs("peinte\n", stderr);
            std::fflush(stderr);
        });
    }
};

}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc != 2)
        return 2;
    Modele modele(lire(argv[1]));
    Vue vue;
    vue.setUniformItemSizes(true);
    vue.setModel(&modele);
    vue.resize(1280, 800);
    vue.show();
    return QApplication::exec();
}
