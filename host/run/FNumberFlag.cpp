#include "host/run/FNumberFlag.h"

#include <utility>

QStringList namesOf(FNumberFlags flags) {
    static const std::pair<FNumberFlag, const char*> names[] = {
        {FNumberFlag::AnchorMissing, "anchor missing"},
        {FNumberFlag::LineBeyondEnd, "line beyond end"},
        {FNumberFlag::ColumnMissing, "column missing"},
        {FNumberFlag::NotANumber, "not a number"},
        {FNumberFlag::FewerRows, "fewer rows"},
        {FNumberFlag::NoRows, "no rows"},
        {FNumberFlag::SeparatorInvalid, "invalid separator"},
        {FNumberFlag::SeparatorTooSlow, "slow separator"},
        {FNumberFlag::CutExponent, "exponent"},
        {FNumberFlag::Stars, "asterisks"},
        {FNumberFlag::NanOrInf, "NaN or Inf"},
        {FNumberFlag::DecimalComma, "comma"},
        {FNumberFlag::ThousandsSeparator, "thousands separator"},
        {FNumberFlag::LetterBefore, "letter before"},
        {FNumberFlag::PointExponent, "point before exponent"},
        {FNumberFlag::SpacedExponent, "blank before exponent"},
        {FNumberFlag::SpacedSign, "blank after sign"},
        {FNumberFlag::LetterAfter, "unit"},
        {FNumberFlag::CutAtEdge, "cut"},
        {FNumberFlag::Shifted, "shifted"},
        {FNumberFlag::ZeroBytes, "zero bytes"},
        {FNumberFlag::OnlyCarriageReturns, "CR line ends"},
        {FNumberFlag::FileNotRead, "file not read"}};
    QStringList texts;
    for (const auto& [flag, name] : names) {
        if (flags.testFlag(flag)) {
            texts.append(QString::fromLatin1(name));
        }
    }
    return texts;
}
