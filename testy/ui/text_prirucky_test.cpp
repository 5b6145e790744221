// testy/ui/text_prirucky_test.cpp - the manual's text laid out.
#include "ui/text_prirucky.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QUrl>
#include <gtest/gtest.h>

TEST(TextPrirucky, PictureIsReadOnceForAllWidths) {
    const QTemporaryDir slozka;
    const QString obrazek = slozka.filePath(QStringLiteral("stul.png")),
                  zdroj = slozka.filePath(QStringLiteral("prirucka.md"));
    QImage stul(300, 150, QImage::Format_RGB32);
    stul.fill(Qt::black);
    ASSERT_TRUE(stul.save(obrazek));
    QFile prirucka(zdroj);
    ASSERT_TRUE(prirucka.open(QIODevice::WriteOnly));
    prirucka.write("# Stul\n\n![stul](stul.png)\n");
    prirucka.close();
    QTextDocument text;
    ASSERT_TRUE(nacti_prirucku(text, zdroj));
    EXPECT_TRUE(uprav_obrazky(text, slozka.path(), 200, 1, 1).isEmpty());
    ASSERT_TRUE(QFile::remove(obrazek));
    EXPECT_TRUE(uprav_obrazky(text, slozka.path(), 120, 1, 1).isEmpty());
    const QVariant ukazany = text.resource(QTextDocument::ImageResource, QUrl(QStringLiteral("stul.png")));
    EXPECT_EQ(ukazany.value<QImage>().size(), QSize(120, 60));
}

namespace {

// The text in a document, read from a file as the manual is.
void precti(QTextDocument& text, const QTemporaryDir& slozka, const char* markdown) {
    QFile zdroj(slozka.filePath(QStringLiteral("prirucka.md")));
    ASSERT_TRUE(zdroj.open(QIODevice::WriteOnly));
    zdroj.write(markdown);
    zdroj.close();
    ASSERT_TRUE(nacti_prirucku(text, zdroj.fileName()));
}

} // namespace

TEST(TextPrirucky, SignInATableNeedsNoWords) {
    const QTemporaryDir slozka;
    QTextDocument text;
    precti(text, slozka, "| obraz | stav |\n|---|---|\n| ![](znacka.png) | volno |\n");
    EXPECT_EQ(uprav_obrazky(text, slozka.path(), 200, 1, 1), QStringList(QStringLiteral("znacka.png")));
}

TEST(TextPrirucky, PictureThatIsDrawnMoreDenselyIsShownSmaller) {
    const QTemporaryDir slozka;
    QImage znacka(300, 150, QImage::Format_RGB32);
    znacka.fill(Qt::black);
    znacka.setText(QLatin1String(kHustotaObrazku), QStringLiteral("1.5"));
    ASSERT_TRUE(znacka.save(slozka.filePath(QStringLiteral("znacka.png"))));
    QTextDocument text;
    precti(text, slozka, "![](znacka.png)\n");
    EXPECT_TRUE(uprav_obrazky(text, slozka.path(), 1000, 1, 2).isEmpty());
    const QVariant ukazany = text.resource(QTextDocument::ImageResource, QUrl(QStringLiteral("znacka.png")));
    EXPECT_EQ(ukazany.value<QImage>().size(), QSize(400, 200));
}

TEST(TextPrirucky, ChapterThatIsMentionedIsALink) {
    const QTemporaryDir slozka;
    QTextDocument text;
    precti(text, slozka, "Viz kapitola 12, kapitolu 7 a chapter 3; o kapitole nic.\n");
    odkazy_na_kapitoly(text, Qt::blue);
    QList<int> kapitoly;
    for (auto i = text.begin().begin(); !i.atEnd(); ++i)
        if (i.fragment().charFormat().isAnchor())
            kapitoly += kapitola_odkazu(i.fragment().charFormat().anchorHref());
    EXPECT_EQ(kapitoly, QList<int>({12, 7, 3}));
    EXPECT_EQ(kapitola_odkazu(QStringLiteral("docs/mapa.md")), -1);
}
