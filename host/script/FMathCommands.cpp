#include "host/script/FCmd.h"
#include "host/script/FCmdTable.h"
#include "host/script/FGlobalCommands.h"
#include "host/script/FNumberFormat.h"

#include <cmath>
#include <limits>

namespace {

using Numbers = std::vector<FExprBase>;

/** The one of the numbers that `isBetter` prefers; it stays the object that it was, so that whole numbers stay whole.
 */
template <class Better>
FExpr<FObject> best(const Numbers& values, const char* name, Better isBetter) {
    FObject* found = nullptr;
    for (const FExprBase& value : values) {
        auto* number = dynamic_cast<FDouble*>(valueObject(value));
        if (!number) {
            FCmd::warnNow(QString::fromLatin1(name),
                          QStringLiteral("%1: %2 is not a number").arg(QString::fromLatin1(name), value.toString()));
            return {};
        }
        const auto* bestSoFar = dynamic_cast<const FDouble*>(found);
        found = !bestSoFar || isBetter(number->toDouble(), bestSoFar->toDouble()) ? number : found;
    }
    return FExpr<FObject>(found);
}

FExpr<FObject> least(const Numbers& values) {
    return best(values, "min", std::less<double>());
}

FExpr<FObject> greatest(const Numbers& values) {
    return best(values, "max", std::greater<double>());
}

FExpr<FObject> whole(double value) {
    return FExpr<FObject>(static_cast<const FObject*>(FInteger::fit(value)));
}

FExpr<FObject> format(const FExpr<FObject>& value, const QString& pattern) {
    const FObject* object = valueObject(value);
    FFormatValue formatted;
    if (const auto* integer = dynamic_cast<const FInteger*>(object)) {
        formatted = static_cast<qint64>(integer->toDouble());
    } else if (const auto* number = dynamic_cast<const FDouble*>(object)) {
        formatted = number->toDouble();
    } else if (const auto* basic = dynamic_cast<const FBasicType*>(object)) {
        formatted = basic->toPlainString();
    } else {
        formatted = FExprBase(object).toString();  // NULL for a parameter without a value
    }
    QString error;
    const std::optional<QString> text = formatNumber(pattern, formatted, error);
    if (!text) {
        FCmd::warnNow(QStringLiteral("format"), QStringLiteral("format: ") + error);
        return {};
    }
    return FExpr<FObject>(new FString(*text));
}

FExpr<FObject> number(const QString& text) {
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber) {
        constexpr int longest = 40;
        FCmd::warnNow(QStringLiteral("number"),
                      QStringLiteral("number: the text \"%1\" isn't a number").arg(text.left(longest)),
                      QStringLiteral("The result is NaN"));
    }
    return FExpr<FObject>(new FDouble(isNumber ? value : std::numeric_limits<double>::quiet_NaN()));
}

using Function = double (*)(double);

void commands(FCmdTable& table) {
    const FCmdType numberType = FCmdTypeOf<double>::type();
    const std::initializer_list<std::pair<const char*, Function>> functions{
        {"sqrt", std::sqrt}, {"exp", std::exp}, {"log", std::log},   {"log10", std::log10}, {"sin", std::sin},
        {"cos", std::cos},   {"tan", std::tan}, {"asin", std::asin}, {"acos", std::acos},   {"atan", std::atan}};
    for (const auto& [name, function] : functions) {
        table.global(name, function, {"x"}).query();
    }
    table.global("atan2", static_cast<double (*)(double, double)>(std::atan2), {"y", "x"}).query();
    table.global("pow", static_cast<double (*)(double, double)>(std::pow), {"base", "exponent"}).query();
    table
        .global(
            "pi", +[] { return std::acos(-1.0); })
        .query();
    table.global("abs", static_cast<Function>(std::fabs), {"x"}).query();
    table.global("floor", +[](double x) { return whole(std::floor(x)); }, {"x"}).returns(numberType).query();
    table.global("ceil", +[](double x) { return whole(std::ceil(x)); }, {"x"}).returns(numberType).query();
    table.global("round", +[](double x) { return whole(std::round(x)); }, {"x"}).returns(numberType).query();
    table.global("min", &least, {"numbers"}).returns(numberType).query();
    table.global("max", &greatest, {"numbers"}).returns(numberType).query();
    table.global("isNaN", +[](double x) { return std::isnan(x); }, {"x"}).query();
    table.global("format", &format, {"value", "pattern"}).returns(FCmdTypeOf<QString>::type()).query();
    table.global("number", &number, {"text"}).returns(numberType).query();
}

}  // namespace

FClassData FMathCommands::mClass("FMathCommands", &FObject::mClass, &commands);
