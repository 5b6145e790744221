// testy/ui/text_prirucky_test.cpp - the manual's text laid out.
#include "ui/text_prirucky.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
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
