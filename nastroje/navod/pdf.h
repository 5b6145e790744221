// nastroje/navod/pdf.h - a text in Markdown as a PDF.
#pragma once

#include <QString>

// What the pages say in the language of the text.
struct JazykPdf {
    QString titul;  // of the document
    QString obsah;  // heading of the contents
    QString verze;  // line below the title
    QString strana; // at the foot of a page, before its number
};

// Lays out a title page with the picture `titul` of the text's folder, contents with the numbers of pages,
// and the text; no heading stands alone at the foot of a page. The pictures of the text lie beside it. False
// when it cannot be read or written, with the reason on the standard error. A picture that is missing is such
// a reason.
bool vytvor_pdf(const QString& markdown, const QString& pdf, const JazykPdf& jazyk);
