#include "genericintegration/templates/FGenIntResultsFile.h"

#include "genericintegration/templates/FValueReference.h"
#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FObjectName.h"
#include "host/core/FObjectTree.h"
#include "host/design/FConnectorInterface.h"
#include "host/design/FParameter.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdTable.h"

namespace {

/** The suffix of the n-th value of a name, counted from 0. */
QString counted(const QString& name, int number) {
    return number == 0 ? name + QStringLiteral("_00") : numberedName(name, number);
}

void setValues(FGenIntResultsFile& file, const FKeptList& values) {
    file.setValues(values.list);
}

}  // namespace

void FGenIntResultsFile::declareCommands(FCmdTable& table) {
    using F = FGenIntResultsFile;
    // Neither a change of these nor their setters mark what depends on the template.
    const auto separator = [&table](const char* name, auto member, const char* argument, const char* label) {
        table.plain<F>(name, member, {argument})
            .copied()
            .marksClients(false)
            .attrName(label)
            .attrAsExpr(false)
            .systemFlag(2)
            .hidden();
    };
    table.creator(
        "genericIntegrationResultsFile", +[](const FNewName& name) { return F::create(name.name); });
    table.attribute<F>("setValues", &::setValues, &F::getValues, {"values"})
        .attrName("Values")
        .systemFlag(2)
        .hidden()
        .data();
    separator("setNumberSeparator", &F::mNumberSeparator, "checked", "Find Numbers");
    separator("setSpacesAndTabsSeparator", &F::mSpacesAndTabsSeparator, "checked", "Spaces and Tabs Separator");
    separator("setRegExprSeparator", &F::mRegExprSeparator, "regularExpression", "RegExp Separator");
    table.member<F>("setRegExpSeparator", &F::setRegExpSeparator, {"regularExpression"}).systemFlag(1).data();
    table.member<F>("setSpaceSeparator", &F::setSpaceSeparator, {"checked"}).systemFlag(1).data();
    // The command's name has this spelling.
    table.member<F>("setTabSeaparator", &F::setTabSeparator, {"checked"})
        .method("setTabSeparator")
        .systemFlag(1)
        .data();
    // No command has this name, so that the attribute stays visible here.
    table.hideInherited("FAttribCmdFGenIntCommandFilesetForceWindowsLineEndingsbool");
}

FClassData FGenIntResultsFile::mClass("FGenIntResultsFile", &FGenIntFile::mClass, &FGenIntResultsFile::declareCommands,
                                      &FGenIntResultsFile::fields);

FGenIntResultsFile::FGenIntResultsFile(const QString& name) : FClass(name) {
    if (!isInitializingPrototype()) {
        mValues = FExpr<FObjectList>(new FObjectList);
    }
}

std::vector<std::unique_ptr<FStateField>> FGenIntResultsFile::fields() {
    using F = FGenIntResultsFile;
    return FStateFields<F>().owned(&F::mValues).member(&F::mCurValue).take();
}

FGenIntResultsFile* FGenIntResultsFile::create(const QString& name) {
    auto* file = new FGenIntResultsFile(name);
    file->registerObject();
    return file;
}

QList<FExpr<FGenIntResultsFile>> FGenIntResultsFile::among(const QList<FExpr<FGenIntFile>>& files) {
    QList<FExpr<FGenIntResultsFile>> found;
    for (const FExpr<FGenIntFile>& file : files) {
        if (const FExpr<FGenIntResultsFile> results(file); results) {
            found.append(results);
        }
    }
    return found;
}

// The rows of an average may name a computation, and so keep what keeps this template.
void FGenIntResultsFile::letGo() {
    mValues = FExpr<FObjectList>(new FObjectList);
    mCurValue = {};
}

FObject* FGenIntResultsFile::clone() const {
    FGenIntResultsFile* copy = create(QString());
    copy->init(this);
    return copy;
}

void FGenIntResultsFile::init(const FGenIntResultsFile* other) {
    if (other) {
        FGenIntFile::init(other);
        copyAttributes(FGenIntResultsFile::mClass, *other);
        setValues(other->getValues());
    }
}

FGenIntResultsFile::FGenIntResultsFile(const FGenIntResultsFile& other) : FClass(other) {
    *this = other;
}

// The values are the template's own: a copy gets copies of them.
FGenIntResultsFile& FGenIntResultsFile::operator=(const FGenIntResultsFile& other) {
    if (this == &other) {
        return *this;
    }
    FGenIntFile::operator=(other);
    copyAttributes(FGenIntResultsFile::mClass, other);
    const FExpr<FObjectList> fresh(new FObjectList);
    mCurValue = {};
    for (const FExpr<FObject>& element : other.mValues ? other.mValues->getObjects() : std::vector<FExpr<FObject>>()) {
        const FExpr<FObject> copy(element ? element->clone() : nullptr);
        fresh->add(copy);
        mCurValue = element == other.mCurValue ? FExpr<FGenIntResultsFileValue>(copy) : mCurValue;
    }
    mValues = fresh;
    mReaderCache = nullptr;
    return *this;
}

void FGenIntResultsFile::addValue(const QString& name, int line, int column, const QString& anchor,
                                  const QString& occurrence, bool calcAverage, const FExpr<FUnsigned>& numAverageRows) {
    const QString given = name.isEmpty() ? counted(QStringLiteral("ResultsValue"), mValues->count()) : name;
    auto* value = new FGenIntResultsFileValue(given, line, column, anchor, occurrence, FDouble::null(), QString(),
                                              calcAverage, numAverageRows);
    recordChange();
    mCurValue = FExpr<FGenIntResultsFileValue>(value);
    mValues->add(mCurValue);
    setOutOfDate(true);
}

FExpr<FGenIntResultsFileValue> FGenIntResultsFile::getValue(const QString& name) const {
    for (const FExpr<FObject>& element : mValues->getObjects()) {
        const FExpr<FGenIntResultsFileValue> value(element);
        if (value && value->mName.compare(name, Qt::CaseInsensitive) == 0) {
            return value;
        }
    }
    return {};
}

void FGenIntResultsFile::setValues(const FExpr<FObjectList>& values) {
    const FExpr<FObjectList> fresh(new FObjectList);
    for (const FExpr<FObject>& element : values ? values->getObjects() : std::vector<FExpr<FObject>>()) {
        // Finished values, as a copy hands them on, become blank ones on purpose.
        const QString fault =
            FExpr<FGenIntResultsFileValue>(element) ? QString() : FGenIntResultsFileValue::faultOf(element);
        if (!fault.isEmpty()) {
            FCmd::warnNow(getClass(),
                          QStringLiteral("value %1%2 of %3 ")
                                  .arg(QString::number(fresh->count()), FGenIntResultsFileValue::quotedNameIn(element),
                                       getName()) +
                              fault,
                          QStringLiteral("Values count from 0; correct it in the list of setValues"));
        }
        const FExpr<FGenIntResultsFileValue> value(new FGenIntResultsFileValue);
        value->setPrimitiveValue(element);
        fresh->add(value);
    }
    recordChange();
    mValues = fresh;
    if (!mCurValue && mValues->count() > 0) {
        mCurValue = mValues->at(0);
    }
}

void FGenIntResultsFile::deleteCurrentValue() {
    if (mCurValue) {
        recordChange();
        mValues->remove(mCurValue);
    }
}

QString FGenIntResultsFile::setCurValueName(const QString& name) {
    if (!mCurValue || mCurValue->mName == name) {
        return name;
    }
    FHistoryTransaction transaction(QStringLiteral("Set results value name"));
    QString candidate = name;
    for (int number = 1; getValue(candidate); ++number) {
        candidate = counted(name, number);
    }
    mCurValue->mName = candidate;
    transaction.addStep(this);
    return candidate;
}

int FGenIntResultsFile::getCurLine() const {
    return mCurValue ? mCurValue->mLine : 0;
}

int FGenIntResultsFile::getCurColumn() const {
    return mCurValue ? mCurValue->mColumn : 0;
}

bool FGenIntResultsFile::getCurCalcAverage() const {
    return mCurValue && mCurValue->mCalcAverage;
}

FExpr<FUnsigned> FGenIntResultsFile::getCurNumAverageRows() const {
    return mCurValue ? mCurValue->mNumAverageRows : FExpr<FUnsigned>();
}

QString FGenIntResultsFile::getCurrentAnchor() const {
    return mCurValue ? mCurValue->mAnchor : QString();
}

void FGenIntResultsFile::setCurrentAnchor(const QString& anchor) {
    if (mCurValue) {
        recordChange();
        mCurValue->mAnchor = anchor;
    }
}

GenIntAnchorOccurrence FGenIntResultsFile::getCurrentOccurrence() const {
    return mCurValue ? mCurValue->mOccurrence.get() : GenIntAnchorOccurrence::Last;
}

void FGenIntResultsFile::setCurrentOccurrence(GenIntAnchorOccurrence occurrence) {
    if (mCurValue) {
        recordChange();
        mCurValue->mOccurrence = FEnum<GenIntAnchorOccurrence>(occurrence);
    }
}

void FGenIntResultsFile::setNumberSeparator(bool numbers) {
    recordChange();
    mNumberSeparator = numbers;
}

void FGenIntResultsFile::setSpacesAndTabsSeparator(bool spacesAndTabs) {
    recordChange();
    mSpacesAndTabsSeparator = spacesAndTabs;
}

void FGenIntResultsFile::setRegExprSeparator(const QString& expression) {
    recordChange();
    mRegExprSeparator = expression;
}

void FGenIntResultsFile::setRegExpSeparator(const QString& expression) {
    setRegExprSeparator(expression);
    mNumberSeparator = mNumberSeparator && expression.isEmpty();
}

void FGenIntResultsFile::setSpaceSeparator(bool space) {
    recordChange();
    mNumberSeparator = mNumberSeparator && !space;
    mSpacesAndTabsSeparator = mSpacesAndTabsSeparator || space;
}

FGenIntFile* FGenIntResultsFile::setFileName(const QString& fileName) {
    FGenIntFile::setFileName(fileName);
    if (FMerixCtrl::instance()->isLoadingProject()) {
        return this;
    }
    for (FConnectorInterface* connector : FConnectorInterface::getConnectors()) {
        connector->refreshEditors(this);
    }
    return this;
}

FExpr<FParameter> FGenIntResultsFile::createParam(const QString& valueName, const QString& ownerName,
                                                  bool highlight) const {
    if (!getValue(valueName)) {
        return {};
    }
    FExpr<FObject> number;
    number.resolve(FValueReference{ownerName, getFileName(), valueName}.text());
    if (number.isEmpty()) {
        return {};
    }
    const QString name = QStringLiteral("eval_") + valueName;
    FHistory::instance()->startTransaction(QStringLiteral("create evaluation: ") + name);
    const FExpr<FParameter> parameter(
        FParameter::create(FObjectManager::instance()->getWorkingScope(), name, FExprBase()));
    parameter->setUpdateOnDemand(true);
    parameter->setValue(number);
    FHistory::instance()->commit(1);
    if (highlight) {
        FObjectTree::highlight({parameter});
    }
    return parameter;
}
