// nastroje/navod/pdf.h - a text in Markdown as a PDF.
#pragma once

#include <QString>

// The pictures of the text lie beside it. False when it cannot be read or written, with the reason on the
// standard error. A picture that is missing is such a reason.
bool vytvor_pdf(const QString& markdown, const QString& pdf);
