#include "host/lodm/FTecplotZoneHeader.h"

#include <algorithm>
#include <limits>

namespace {

constexpr qint64 most = std::numeric_limits<int>::max();

bool isAnyOf(const FTecplotToken& token, std::initializer_list<QStringView> words) {
    return std::any_of(words.begin(), words.end(), [&token](QStringView word) { return token.is(word); });
}

QString notSupported(const FTecplotToken& what) {
    return QStringLiteral("\"%1\" isn't supported").arg(what.text);
}

struct FElementKind {
    QStringView name;
    int nodes;
};

// Names of the present form, then of the older one.
constexpr FElementKind elementKinds[] = {
    {u"FELINESEG", 2}, {u"FETRIANGLE", 3}, {u"FEQUADRILATERAL", 4}, {u"FETETRAHEDRON", 4}, {u"FEBRICK", 8},
    {u"LINESEG", 2},   {u"TRIANGLE", 3},   {u"QUADRILATERAL", 4},   {u"TETRAHEDRON", 4},   {u"BRICK", 8},
};

}  // namespace

QString FTecplotZoneHeader::set(const FTecplotToken& key, const FTecplotToken& value) {
    if (key.is(u"T")) {
        title = value.text.toString();
    } else if (isAnyOf(key, {u"I", u"J", u"K", u"N", u"NODES", u"E", u"ELEMENTS"})) {
        return setCount(key, value);
    } else if (isAnyOf(key, {u"F", u"DATAPACKING"})) {
        return setPacking(value);
    } else if (isAnyOf(key, {u"ET", u"ZONETYPE"})) {
        return setType(value);
    } else if (key.is(u"VARLOCATION") && value.text.contains(u"CELLCENTERED", Qt::CaseInsensitive)) {
        return QStringLiteral("numbers at the centres of cells aren't supported");
    } else if (isAnyOf(key, {u"VARSHARELIST", u"CONNECTIVITYSHAREZONE", u"PASSIVEVARLIST", u"D"})) {
        return notSupported(key);
    }
    return {};
}

QString FTecplotZoneHeader::setCount(const FTecplotToken& key, const FTecplotToken& value) {
    bool isCount = false;
    const qint64 count = value.text.toString().toInt(&isCount);
    if (!isCount || count < (key.is(u"E") || key.is(u"ELEMENTS") ? 0 : 1)) {
        return QStringLiteral("\"%1\" isn't a number of points or elements").arg(value.text);
    }
    const QStringView axes = u"IJK";
    const qsizetype axis = axes.indexOf(key.text.front().toUpper());
    if (axis >= 0) {
        mSize[axis] = count;
    } else {
        (key.text.front().toUpper() == u'N' ? mNodes : mElements) = count;
    }
    return {};
}

QString FTecplotZoneHeader::setPacking(const FTecplotToken& value) {
    isBlock = isAnyOf(value, {u"BLOCK", u"FEBLOCK"});
    return isBlock || isAnyOf(value, {u"POINT", u"FEPOINT"}) ? QString() : notSupported(value);
}

QString FTecplotZoneHeader::setType(const FTecplotToken& value) {
    const auto kind = std::find_if(std::begin(elementKinds), std::end(elementKinds),
                                   [&value](const FElementKind& each) { return value.is(each.name); });
    mNodesPerElement = kind == std::end(elementKinds) ? 0 : kind->nodes;
    return kind != std::end(elementKinds) || value.is(u"ORDERED") ? QString() : notSupported(value);
}

qint64 FTecplotZoneHeader::points() const {
    if (mNodes >= 0) {
        return mNodes;
    }
    qint64 points = 1;
    for (const qint64 size : mSize) {
        points = std::min(most, points * std::max<qint64>(size, 1));
    }
    const bool isKnown = std::any_of(std::begin(mSize), std::end(mSize), [](qint64 size) { return size >= 0; });
    return isKnown ? points : -1;
}
