#include "host/gui/fields/FScriptCompleter.h"

#include "host/core/FObjectManager.h"
#include "host/script/FBinder.h"
#include "host/script/FCmdManager.h"
#include "host/script/FScriptParser.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr int mostObjects = 5000;

bool isNameCharacter(QChar character) {
    return character.isLetterOrNumber() || character == QLatin1Char('_');
}

/** The name at the end of a text. */
QString lastName(const QString& text) {
    int begin = text.size();
    while (begin > 0 && isNameCharacter(text.at(begin - 1))) {
        --begin;
    }
    return text.mid(begin);
}

/** The shortest end of the text that is a call chain, such as `a.b(c)` in `x + a.b(c)`. */
QString chainAtEnd(const QString& text) {
    int depth = 0;
    int begin = text.size();
    while (begin > 0) {
        const QChar at = text.at(begin - 1);
        if (at == QLatin1Char(')') || at == QLatin1Char(']')) {
            ++depth;
        } else if (depth > 0 && (at == QLatin1Char('(') || at == QLatin1Char('['))) {
            --depth;
        } else if (depth == 0 && !isNameCharacter(at) && at != QLatin1Char('.')) {
            break;
        }
        --begin;
    }
    return text.mid(begin);
}

/** The class of what a text gives, without evaluating it; null if that isn't known. */
const FObject* typeOf(const QString& text, const FScriptNames* variables) {
    const FParsedExpression parsed = parseExpression(text);
    if (parsed.error) {
        return nullptr;
    }
    FScriptNames names = variables ? *variables : FScriptNames();
    FBinder binder(names, QString());
    const FExprBase bound = binder.bind(parsed.expression, FBinder::Use::Kept);
    return binder.getError() ? nullptr : bound.getType();
}

}  // namespace

FScriptCompleter::FScriptCompleter(QLineEdit* field, std::function<const FScriptNames*()> names)
    : QCompleter(field), mpField(field), mpModel(new QStringListModel(this)), mNames(std::move(names)) {
    setModel(mpModel);
    setWidget(field);
    setCaseSensitivity(Qt::CaseInsensitive);
    setCompletionMode(PopupCompletion);
    popup()->setObjectName(QStringLiteral("completions"));
    popup()->setAccessibleName(QStringLiteral("Completions"));
    field->installEventFilter(this);
    connect(field, &QLineEdit::textEdited, this, [this] { offer(false); });
    connect(this, QOverload<const QString&>::of(&QCompleter::activated), this, &FScriptCompleter::take);
}

QStringList FScriptCompleter::candidates(const QString& text) const {
    const QString before = text.left(text.size() - lastName(text).size());
    QStringList names;
    if (before.endsWith(QLatin1Char('.'))) {
        const FObject* type = typeOf(chainAtEnd(before.left(before.size() - 1)), mNames ? mNames() : nullptr);
        names = type ? FCmdManager::instance()->memberNames(type->getClassData()) : QStringList();
    } else {
        names = FCmdManager::instance()->globalNames() + FCmdManager::instance()->creatorNames() +
                FObjectManager::instance()->getNames().mid(0, mostObjects);
    }
    names.removeDuplicates();
    names.sort(Qt::CaseInsensitive);
    return names;
}

void FScriptCompleter::offer(bool isWanted) {
    const QString text = mpField->text().left(mpField->cursorPosition());
    const QString prefix = lastName(text);
    const bool isMember = text.endsWith(QLatin1Char('.'));
    if (!isWanted && !isMember && prefix.size() < 2) {
        popup()->hide();
        return;
    }
    mpModel->setStringList(candidates(text));
    setCompletionPrefix(prefix);
    const bool isComplete = completionCount() == 1 && currentCompletion() == prefix;
    if (completionCount() == 0 || isComplete) {
        popup()->hide();
        return;
    }
    complete();
}

void FScriptCompleter::take(const QString& name) {
    const int end = mpField->cursorPosition();
    const int length = lastName(mpField->text().left(end)).size();
    mpField->setSelection(end - length, length);
    mpField->insert(name);
}

bool FScriptCompleter::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mpField && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<const QKeyEvent*>(event);
        if (key->key() == Qt::Key_Space && key->modifiers() == Qt::ControlModifier) {
            offer(true);
            return true;
        }
    }
    return QCompleter::eventFilter(watched, event);
}
