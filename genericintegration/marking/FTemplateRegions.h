#pragma once

#include <QStringList>
#include <QVector>

/**
 * What the editor of input templates offers in a line: its tags, and the numbers that can become entries. Columns count
 * UTF-16 units from the start of the line.
 *
 * There is a list for each property. They differ in length if a tag isn't closed or its name has unusual characters;
 * each function returns its default for an index outside its list.
 */
struct FTemplateRegions {
    QVector<int> regionStarts{};
    QVector<int> regionEnds{};       //!< after the region
    QVector<int> valueStarts{};      //!< of the name in a tag, or of the number
    QStringList names{};             //!< in a tag, or proposed for a number
    QVector<double> values{};        //!< NaN for a tag
    QStringList texts{};             //!< of the regions
    QVector<bool> possibleValues{};  //!< true for a number, false for a tag

    bool isEmpty() const { return regionStarts.isEmpty(); }

    /** The first region that a column is in or directly after; -1 if there is none, or if a tag isn't closed. */
    int indexAt(int column) const;

    int regionStart(int index) const;
    int regionEnd(int index) const;
    int valueStart(int index) const;
    QString name(int index) const { return names.value(index); }
    double value(int index) const;
    QString text(int index) const { return texts.value(index); }
    bool isPossibleValue(int index) const { return possibleValues.value(index, false); }

    void appendNumber(int start, int end, int valueStart, const QString& name, double value, const QString& text);
};
