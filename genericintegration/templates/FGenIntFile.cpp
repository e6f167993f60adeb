#include "genericintegration/templates/FGenIntFile.h"

#include "genericintegration/templates/FTemplateOwner.h"
#include "host/core/FFile.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FModel.h"
#include "host/core/FTextDecoder.h"
#include "host/design/FDefinition.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdTable.h"
#include "host/script/FSavedTextReader.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

namespace {

/** Bytes of the longest file that becomes the content of a template. */
constexpr int longestSample = 256 << 20;

const QString& storedMark() {
    static const QString mark = QStringLiteral("[B64]");
    return mark;
}

/** Line ends and blanks, which somebody may have put in, do no harm. */
bool isBase64(const QByteArray& text) {
    const QByteArray bare = text.simplified().replace(' ', "");
    return static_cast<bool>(QByteArray::fromBase64Encoding(bare, QByteArray::AbortOnBase64DecodingErrors));
}

void commands(FCmdTable& table) {
    table.attribute<FGenIntFile>("setContent", &FGenIntFile::setContent, &FGenIntFile::getContent, {"content"})
        .attrName("Content")
        .hidden()
        .systemFlag(2)
        .data();
    table.attribute<FGenIntFile>("setFileName", &FGenIntFile::setFileName, &FGenIntFile::getFileName, {"fileName"})
        .attrName("File Name")
        .hidden()
        .systemFlag(2)
        .data();
    table
        .attribute<FGenIntFile>("setForceWindowsLineEndings", &FGenIntFile::setForceWindowsLineEndings,
                                &FGenIntFile::getForceWindowsLineEndings, {"forceWindowsLineEndings"})
        .attrName("Force Windows Line Endings")
        .data();
}

}  // namespace

FClassData FGenIntFile::mClass("FGenIntFile", &FManaged::mClass, &commands, &FGenIntFile::fields);

FGenIntFile& FGenIntFile::operator=(const FGenIntFile& other) = default;

FGenIntFile::FGenIntFile(const QString& name) : FClass(name) {
    mSystemLevel = 2;
}

std::vector<std::unique_ptr<FStateField>> FGenIntFile::fields() {
    return FStateFields<FGenIntFile>()
        .member(&FGenIntFile::mFileName)
        .text(&FGenIntFile::mContent, [](FGenIntFile& file) { file.mContentAltered = true; })
        .member(&FGenIntFile::mForceWindowsLineEndings)
        .take();
}

QString FGenIntFile::getContent() const {
    return storedMark() + QString::fromLatin1(mContent.toUtf8().toBase64());
}

QString FGenIntFile::decode(const QString& stored) const {
    const QByteArray base64 = stored.mid(storedMark().size()).toLatin1();
    const QByteArray bytes = QByteArray::fromBase64(base64);
    // What can be read is taken in any case.
    if (FSavedTextReader::isReading() && !isBase64(base64)) {
        FCmd::warnNow(getClass(), QStringLiteral("the content of %1 is damaged: it isn't Base64").arg(getName()),
                      QStringLiteral("What could be read of it is kept"));
    }
    // A mark of byte order at the start is a part of the text.
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
}

void FGenIntFile::markOutOfDate() {
    if (!mBlockOutOfDate) {
        setOutOfDate(true);
    }
}

FGenIntFile* FGenIntFile::setContent(const QString& content) {
    QString plain = content;
    if (content.startsWith(storedMark())) {
        plain = decode(content);
    } else if (FMerixCtrl::instance()->isLoadingProject()) {
        // A content written by hand may have its line ends as "\\n".
        plain.replace(QStringLiteral("\\n"), QStringLiteral("\n"));
    }
    setPlainContent(plain);
    return this;
}

void FGenIntFile::setPlainContent(const QString& content) {
    mContent = content;
    markOutOfDate();
    mContentAltered = true;
    FHistoryTransaction transaction(QStringLiteral("set content"));
    transaction.addStep(this);
}

void FGenIntFile::initFromFile(const QString& path) {
    QFile file(path);
    if (!FFile::openOrdinary(file).isEmpty()) {
        return;
    }
    const QByteArray bytes = FFile::readAtMost(file, longestSample + 1);
    file.close();
    if (bytes.size() > longestSample) {
        FLogMsg::error(getClass(),
                       QStringLiteral("\"%1\" has more than %2 bytes").arg(path, QString::number(longestSample)),
                       QStringLiteral("It isn't read; a part of it is enough for a template"));
        return;
    }
    const int badLine = FTextDecoder::firstInvalidLine(bytes);
    if (badLine > 0) {
        FLogMsg::warning(getClass(),
                         QStringLiteral("\"%1\" isn't valid UTF-8 in line %2").arg(path, QString::number(badLine)),
                         QStringLiteral("What can't be read is replaced; save the file as UTF-8"));
    }
    setContent(FTextDecoder::decode(bytes));
    const QString name = QFileInfo(path).fileName();
    setFileName(name);
    setName(name);
}

FGenIntFile* FGenIntFile::setFileName(const QString& fileName) {
    if (fileName == mFileName) {
        return this;
    }
    const QString oldName = mFileName;
    mFileName = fileName;
    markOutOfDate();
    FHistoryTransaction transaction(QStringLiteral("set file name"));
    transaction.addStep(this);
    if (FMerixCtrl::instance()->isLoadingProject()) {
        return this;
    }
    for (FManaged* entity : FModel::instance()->getEntities(FDefinition::null())) {
        auto* owner = dynamic_cast<FTemplateOwner*>(entity);
        if (owner && owner->getFiles().contains(FExpr<FGenIntFile>(this))) {
            owner->updateCommandFiles(oldName, fileName);
            break;
        }
    }
    return this;
}

void FGenIntFile::setForceWindowsLineEndings(bool force) {
    mForceWindowsLineEndings = force;
    FHistoryTransaction transaction(QStringLiteral("set force Windows line endings"));
    transaction.addStep(this);
}
