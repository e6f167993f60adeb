#pragma once

#include "genericintegration/marking/FTemplateLine.h"

#include <QRegExp>
#include <QString>
#include <QStringList>

#include <vector>

/** A second, slow analysis of a line of an input template, with regular expressions, pass by pass. */
class FLiteralTemplateLine {
 public:
    FLiteralTemplateLine(const QString& line, const QStringList& names, FTemplateLine::Mode mode,
                         const QRegExp& search);

    FTemplateRegions regions;
    std::vector<FTemplateSpan> spans;

    /** What differs from this analysis in the other one; empty if nothing. */
    QString difference(const FTemplateLine& other) const;

 private:
    void passTags();
    void passNames(const QStringList& names);
    void passNumbers();
    void passElements();
    void passSearch(const QRegExp& search);
    QString attributeKey(const QString& tagName, int position) const;
    void paint(FTemplateSpan::Kind kind, int start, int length);

    QString text;
    bool closed = true;
    QRegExp tag{"<entry>[\\w|\\d|\\||\\.\\/]*<\\/entry>"};
};
