#include "genericintegration/marking/FTemplateRegions.h"

#include <limits>

namespace {

constexpr int noColumn = std::numeric_limits<int>::min();

}  // namespace

int FTemplateRegions::indexAt(int column) const {
    if (regionStarts.size() != regionEnds.size()) {
        return -1;
    }
    for (int i = 0; i < regionStarts.size(); ++i) {
        if (regionStarts[i] <= column && column <= regionEnds[i]) {
            return i;
        }
    }
    return -1;
}

int FTemplateRegions::regionStart(int index) const {
    return regionStarts.value(index, noColumn);
}

int FTemplateRegions::regionEnd(int index) const {
    return regionEnds.value(index, noColumn);
}

int FTemplateRegions::valueStart(int index) const {
    return valueStarts.value(index, noColumn);
}

double FTemplateRegions::value(int index) const {
    return values.value(index, std::numeric_limits<double>::quiet_NaN());
}

void FTemplateRegions::appendNumber(int start, int end, int valueStart, const QString& name, double value,
                                    const QString& text) {
    regionStarts.append(start);
    regionEnds.append(end);
    valueStarts.append(valueStart);
    names.append(name);
    values.append(value);
    texts.append(text);
    possibleValues.append(true);
}
