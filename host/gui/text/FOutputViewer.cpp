#include "host/gui/text/FOutputViewer.h"

#include "host/core/FClipboard.h"
#include "host/gui/base/FFixedFont.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FStateColor.h"
#include "host/gui/text/FOutputAccessible.h"
#include "host/gui/text/FShownLine.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int followInterval = 300;  // milliseconds
constexpr int dragInterval = 40;
/** Cells up to which a line is decoded from its start, so that its tabs are right. */
constexpr int mostFromStart = 20000;
/** Bytes of a selection that can be copied. */
constexpr qint64 mostCopied = 64 << 20;
constexpr int wheelStep = 120;
constexpr int wheelLines = 3;

bool isWordByte(char c) {
    return c < 0 || QChar::isLetterOrNumber(static_cast<uint>(c)) || c == '_' || c == '.' || c == '+' || c == '-';
}

}  // namespace

FOutputViewer::FOutputViewer(QWidget* parent) : QAbstractScrollArea(parent) {
    FOutputAccessible::install();
    setObjectName(QStringLiteral("outputView"));
    setAccessibleName(QStringLiteral("Output file"));
    setFont(FFixedFont::get());
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
    mIndexing.setInterval(0);
    mFollowing.setInterval(followInterval);
    mDragging.setInterval(dragInterval);
    connect(&mIndexing, &QTimer::timeout, this, &FOutputViewer::indexOn);
    connect(&mFollowing, &QTimer::timeout, this, &FOutputViewer::follow);
    connect(&mDragging, &QTimer::timeout, this, [this] {
        const QPoint point = viewport()->mapFromGlobal(QCursor::pos());
        scrollLines(point.y() < 0 ? -1 : point.y() > viewport()->height() ? 1 : 0);
        mCaret = offsetAt(point);
        viewport()->update();
    });
}

QString FOutputViewer::open(const QString& path) {
    const QString fault = mText.open(path);
    mTop = mAnchor = mCaret = 0;
    mMark = {};
    mWanted = {};
    mWidest = 0;
    mIndexing.start();
    updateBars();
    viewport()->update();
    return fault;
}

// ---- following the file ----

void FOutputViewer::indexOn() {
    const bool isWhole = mText.indexSlice();
    if (isWhole) {
        mIndexing.stop();
    }
    showWanted();
    updateBars();
    viewport()->update();
    emit stateChanged();
}

void FOutputViewer::follow() {
    const FOutputText::Change change = mText.refresh();
    if (change == FOutputText::Change::None) {
        return;
    }
    if (change == FOutputText::Change::Replaced) {
        mAnchor = mCaret = 0;
        mMark = {};
        mTop = mTop > mText.size() ? 0 : mText.lineBegin(mTop);
    }
    if (mIsTailing) {
        mTop = lastTop();
    }
    mIndexing.start();
    updateBars();
    viewport()->update();
    emit stateChanged();
}

void FOutputViewer::setTailing(bool isTailing) {
    if (isTailing) {
        setTop(lastTop());
    }
    if (std::exchange(mIsTailing, isTailing) != isTailing) {
        emit tailingChanged(isTailing);
    }
}

void FOutputViewer::showEvent(QShowEvent* event) {
    QAbstractScrollArea::showEvent(event);
    follow();
    mFollowing.start();
}

void FOutputViewer::hideEvent(QHideEvent* event) {
    mFollowing.stop();
    QAbstractScrollArea::hideEvent(event);
}

// ---- places ----

void FOutputViewer::showPlace(qint64 line, qint64 column, qint64 length, bool isSuspicious) {
    mMark = {};
    mWanted = {line, column, length, isSuspicious};
    if (line > 0) {
        setTailing(false);
    }
    showWanted();
    viewport()->update();
}

void FOutputViewer::showWanted() {
    if (mWanted.line <= 0) {
        return;
    }
    const qint64 begin = mText.lineStart(mWanted.line - 1);
    const bool isKnown = begin >= 0 && mWanted.line < mText.lineCount();
    if (!isKnown && !mText.isIndexed()) {
        return;
    }
    if (begin < 0) {
        mWanted = {};
        return;
    }
    const qint64 end = mText.lineEnd(begin);
    mMark = {begin, end, mWanted.isSuspicious};
    if (mWanted.column > 0) {
        mMark.begin = mText.offsetOf(begin, mWanted.column - 1);
        mMark.end = mText.offsetOf(begin, mWanted.column - 1 + std::max<qint64>(mWanted.length, 1));
    }
    mWanted = {};
    mAnchor = mCaret = mMark.begin;
    reveal(mMark.end);
    reveal(mMark.begin);
    emit stateChanged();
}

void FOutputViewer::select(qint64 begin, qint64 end) {
    setTailing(false);
    mAnchor = begin;
    mCaret = end;
    reveal(end);
    reveal(begin);
    viewport()->update();
}

void FOutputViewer::reveal(qint64 offset) {
    const qint64 line = mText.lineBegin(offset);
    const qint64 bottom = mText.moveLines(mTop, visibleLines() - 1);
    if (line < mTop || line > bottom) {
        mTop = std::min(mText.moveLines(line, -visibleLines() / 3), lastTop());
    }
    updateBars();
    const FShownLine fromStart(
        mText.text().substr(static_cast<size_t>(line), static_cast<size_t>(mText.lineEnd(line) - line)), mostFromStart);
    const qint64 known = fromStart.cellOf(offset - line);
    const int cell = static_cast<int>(known < mostFromStart ? known : mText.columnOf(offset));
    QScrollBar* bar = horizontalScrollBar();
    if (cell < bar->value() || cell >= bar->value() + visibleCells() - 1) {
        bar->setMaximum(std::max(bar->maximum(), cell));
        bar->setValue(std::max(0, cell - visibleCells() / 2));
    }
}

// ---- geometry ----

int FOutputViewer::lineHeight() const {
    return fontMetrics().lineSpacing();
}

int FOutputViewer::cellWidth() const {
    return std::max(1, fontMetrics().horizontalAdvance(QLatin1Char('0')));
}

int FOutputViewer::gutterWidth() const {
    constexpr int fewest = 4;
    const int digits = std::max(fewest, static_cast<int>(QString::number(mText.lineCount()).size()));
    return (digits + 2) * cellWidth();
}

int FOutputViewer::visibleLines() const {
    return std::max(1, viewport()->height() / lineHeight());
}

int FOutputViewer::visibleCells() const {
    return std::max(1, (viewport()->width() - gutterWidth()) / cellWidth());
}

FShownLine FOutputViewer::shownLine(qint64 begin) const {
    const int left = horizontalScrollBar()->value();
    const qint64 end = mText.lineEnd(begin);
    const qint64 from = left < mostFromStart ? begin : mText.offsetOf(begin, left);
    const int hidden = left < mostFromStart ? left : 0;
    FShownLine line(mText.text().substr(static_cast<size_t>(from), static_cast<size_t>(end - from)),
                    hidden + visibleCells() + 1);
    for (qint64& offset : line.offsets) {
        offset += from;
    }
    const int removed = std::min(hidden, line.text.size());
    line.text.remove(0, removed);
    line.offsets.erase(line.offsets.begin(), line.offsets.begin() + removed);
    return line;
}

int FOutputViewer::xOf(const FShownLine& line, int cell) const {
    return gutterWidth() + fontMetrics().horizontalAdvance(line.text.left(cell));
}

qint64 FOutputViewer::offsetAt(const QPoint& point) const {
    const int row = std::clamp(point.y() / lineHeight(), 0, visibleLines());
    const qint64 begin = mText.moveLines(mTop, row);
    const FShownLine line = shownLine(begin);
    int cell = 0;
    while (cell < line.text.size() && (xOf(line, cell) + xOf(line, cell + 1)) / 2 < point.x()) {
        ++cell;
    }
    return line.offsets[static_cast<size_t>(cell)];
}

qint64 FOutputViewer::lastTop() const {
    return mText.moveLines(mText.lineBegin(mText.size()), 1 - visibleLines());
}

// ---- scrolling ----

void FOutputViewer::setTop(qint64 top) {
    mTop = std::clamp<qint64>(top, 0, lastTop());
    updateBars();
    viewport()->update();
    emit stateChanged();
}

void FOutputViewer::scrollLines(qint64 lines) {
    if (lines < 0) {
        setTailing(false);
    }
    setTop(mText.moveLines(mTop, lines));
}

// Until the index covers the file, the bar counts pieces of it instead of lines.
void FOutputViewer::updateBars() {
    mIsUpdatingBars = true;
    constexpr qint64 pieces = 1'000'000;
    mBarUnit = mText.isIndexed() ? 0 : mText.size() / pieces + 1;
    const qint64 last = lastTop();
    QScrollBar* bar = verticalScrollBar();
    bar->setSingleStep(1);
    bar->setPageStep(visibleLines());
    bar->setRange(0, static_cast<int>(mBarUnit == 0 ? mText.lineAt(last) : last / mBarUnit));
    bar->setValue(static_cast<int>(mBarUnit == 0 ? mText.lineAt(mTop) : mTop / mBarUnit));
    QScrollBar* across = horizontalScrollBar();
    qint64 begin = mTop;
    for (int row = 0; row <= visibleLines() && begin >= 0; ++row, begin = mText.nextLine(begin)) {
        const qint64 end = mText.lineEnd(begin);
        const qint64 length = end - begin;
        const int cells = length < mostFromStart
                              ? FShownLine(mText.text().substr(static_cast<size_t>(begin), static_cast<size_t>(length)),
                                           mostFromStart)
                                    .text.size()
                              : static_cast<int>(std::min<qint64>(length, std::numeric_limits<int>::max() / 2));
        mWidest = std::max(mWidest, cells);
    }
    across->setPageStep(visibleCells());
    across->setRange(0, std::max(mWidest + 1 - visibleCells(), 0));
    mIsUpdatingBars = false;
}

void FOutputViewer::scrollContentsBy(int dx, int dy) {
    Q_UNUSED(dx)
    if (mIsUpdatingBars) {
        return;
    }
    if (dy != 0) {
        const qint64 value = verticalScrollBar()->value();
        if (dy > 0) {
            setTailing(false);
        }
        mTop = std::max<qint64>(mBarUnit == 0 ? mText.lineStart(value) : mText.lineBegin(value * mBarUnit), 0);
        emit stateChanged();
    }
    viewport()->update();
}

void FOutputViewer::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    setTop(mIsTailing ? lastTop() : mTop);
}

void FOutputViewer::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateBars();
    }
}

void FOutputViewer::wheelEvent(QWheelEvent* event) {
    mWheelRest += event->angleDelta().y();
    const int steps = mWheelRest / wheelStep;
    mWheelRest -= steps * wheelStep;
    if (event->angleDelta().y() == 0 || event->modifiers() & Qt::ShiftModifier) {
        QAbstractScrollArea::wheelEvent(event);
    } else {
        scrollLines(-qint64{steps} * wheelLines);
    }
    event->accept();
}

// ---- keyboard and mouse ----

// Keys that are shortcuts of the window elsewhere.
bool FOutputViewer::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll)) {
            event->accept();
            return true;
        }
    }
    return QAbstractScrollArea::event(event);
}

void FOutputViewer::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->matches(QKeySequence::SelectAll)) {
        selectAll();
    } else if (event->modifiers() & Qt::ShiftModifier) {
        selectByKey(*event);
    } else {
        scrollByKey(*event);
    }
}

void FOutputViewer::scrollByKey(QKeyEvent& event) {
    const bool isFar = event.modifiers() & Qt::ControlModifier;
    QScrollBar* across = horizontalScrollBar();
    switch (event.key()) {
        case Qt::Key_Up:
            return scrollLines(-1);
        case Qt::Key_Down:
            return scrollLines(1);
        case Qt::Key_PageUp:
            return scrollLines(1 - visibleLines());
        case Qt::Key_PageDown:
            return scrollLines(visibleLines() - 1);
        case Qt::Key_Left:
            return across->setValue(across->value() - 4);
        case Qt::Key_Right:
            return across->setValue(across->value() + 4);
        case Qt::Key_Home:
            across->setValue(0);
            if (isFar) {
                setTailing(false);
                setTop(0);
            }
            return;
        case Qt::Key_End:
            return isFar ? setTop(lastTop()) : across->setValue(across->maximum());
        default:
            event.ignore();
    }
}

void FOutputViewer::selectByKey(QKeyEvent& event) {
    const bool isFar = event.modifiers() & Qt::ControlModifier;
    const qint64 bottom = mText.moveLines(mTop, visibleLines());
    if (mAnchor == mCaret && (mCaret < mTop || mCaret > bottom)) {
        mAnchor = mCaret = mTop;
    }
    const qint64 begin = mText.lineBegin(mCaret);
    const qint64 column = mText.columnOf(mCaret);
    const auto vertically = [&](qint64 lines) { return mText.offsetOf(mText.moveLines(begin, lines), column); };
    switch (event.key()) {
        case Qt::Key_Up:
            mCaret = vertically(-1);
            break;
        case Qt::Key_Down:
            mCaret = vertically(1);
            break;
        case Qt::Key_PageUp:
            mCaret = vertically(1 - visibleLines());
            break;
        case Qt::Key_PageDown:
            mCaret = vertically(visibleLines() - 1);
            break;
        case Qt::Key_Left:
            mCaret = column > 0  ? mText.offsetOf(begin, column - 1)
                     : begin > 0 ? mText.lineEnd(mText.previousLine(begin))
                                 : 0;
            break;
        case Qt::Key_Right: {
            const qint64 next = mText.nextLine(mCaret);
            mCaret = mCaret < mText.lineEnd(mCaret) ? mText.offsetOf(begin, column + 1) : next < 0 ? mCaret : next;
            break;
        }
        case Qt::Key_Home:
            mCaret = isFar ? 0 : begin;
            break;
        case Qt::Key_End:
            mCaret = isFar ? mText.size() : mText.lineEnd(mCaret);
            break;
        default:
            event.ignore();
            return;
    }
    setTailing(false);
    reveal(mCaret);
    viewport()->update();
}

void FOutputViewer::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    mCaret = offsetAt(event->pos());
    if (!(event->modifiers() & Qt::ShiftModifier)) {
        mAnchor = mCaret;
    }
    viewport()->update();
}

void FOutputViewer::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) {
        return;
    }
    mCaret = offsetAt(event->pos());
    const bool isOutside = event->y() < 0 || event->y() > viewport()->height();
    if (isOutside && !mDragging.isActive()) {
        mDragging.start();
    } else if (!isOutside) {
        mDragging.stop();
    }
    viewport()->update();
}

void FOutputViewer::mouseReleaseEvent(QMouseEvent* event) {
    Q_UNUSED(event)
    mDragging.stop();
}

void FOutputViewer::mouseDoubleClickEvent(QMouseEvent* event) {
    const std::string_view text = mText.text();
    qint64 begin = offsetAt(event->pos());
    qint64 end = begin;
    while (begin > 0 && isWordByte(text[static_cast<size_t>(begin - 1)])) {
        --begin;
    }
    while (end < mText.size() && isWordByte(text[static_cast<size_t>(end)])) {
        ++end;
    }
    mAnchor = begin;
    mCaret = end;
    viewport()->update();
}

void FOutputViewer::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    QAction* copyAction =
        menu.addAction(FIcons::get(QStringLiteral("edit-copy")), QStringLiteral("&Copy"), this, [this] { copy(); });
    copyAction->setEnabled(mAnchor != mCaret);
    menu.addAction(FIcons::get(QStringLiteral("edit-select-all")), QStringLiteral("Select &all"), this,
                   [this] { selectAll(); });
    menu.exec(event->globalPos());
}

QString FOutputViewer::getSelectedText() const {
    const auto [begin, end] = getSelection();
    return mText.decode(begin, std::min(end, begin + mostCopied));
}

void FOutputViewer::copy() const {
    if (mAnchor != mCaret) {
        FClipboard::setText(getSelectedText());
    }
}

void FOutputViewer::selectAll() {
    mAnchor = 0;
    mCaret = mText.size();
    viewport()->update();
}

// ---- painting ----

QString FOutputViewer::getVisibleText() const {
    QString text;
    qint64 begin = mTop;
    for (int row = 0; row < visibleLines() && begin >= 0; ++row, begin = mText.nextLine(begin)) {
        text += shownLine(begin).text + QLatin1Char('\n');
    }
    return text;
}

void FOutputViewer::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const int gutter = gutterWidth();
    painter.fillRect(QRect(0, 0, gutter - cellWidth() / 2, viewport()->height()),
                     palette().color(QPalette::AlternateBase));
    qint64 begin = mTop;
    for (int y = 0; y < viewport()->height() && begin >= 0; y += lineHeight()) {
        const qint64 next = mText.nextLine(begin);
        if (QRect(0, y, viewport()->width(), lineHeight()).intersects(event->rect())) {
            const qint64 number = mText.lineAt(begin);
            if (number >= 0) {
                painter.setPen(FStateColor::of(FStateColor::State::Secondary));
                painter.drawText(QRect(0, y, gutter - cellWidth(), lineHeight()), Qt::AlignRight | Qt::AlignVCenter,
                                 QString::number(number + 1));
            }
            paintLine(painter, begin, next < 0 ? mText.size() + 1 : next, y);
        }
        begin = next;
    }
}

void FOutputViewer::paintRange(QPainter& painter, const FShownLine& line, qint64 begin, qint64 end, qint64 lineEnd,
                               int y, const QColor& color, bool isFramed) const {
    const qint64 first = line.offsets.front();
    if (end <= first || begin >= lineEnd || begin == end) {
        return;
    }
    const int left = xOf(line, begin <= first ? 0 : line.cellOf(begin));
    // A selected line end is shown as a blank.
    const int right = end >= lineEnd && line.offsets.back() < lineEnd && !isFramed
                          ? xOf(line, line.text.size()) + cellWidth()
                          : xOf(line, line.cellOf(end));
    const QRect area(left, y, std::max(right - left, 2), lineHeight());
    painter.fillRect(area, color);
    if (isFramed) {
        painter.setPen(FStateColor::of(mMark.isSuspicious ? FStateColor::State::Warning : FStateColor::State::Good));
        painter.drawRect(area.adjusted(0, 0, -1, -1));
    }
}

void FOutputViewer::paintLine(QPainter& painter, qint64 begin, qint64 end, int y) const {
    const FShownLine line = shownLine(begin);
    painter.save();
    painter.setClipRect(QRect(gutterWidth(), y, viewport()->width(), lineHeight()));
    paintRange(painter, line, mMark.begin, mMark.end, end, y,
               FStateColor::backgroundOf(mMark.isSuspicious ? FStateColor::State::Warning : FStateColor::State::Good),
               true);
    const auto [from, to] = getSelection();
    QColor selected = palette().color(QPalette::Highlight);
    selected.setAlpha(hasFocus() ? 110 : 70);
    paintRange(painter, line, from, to, end, y, selected, false);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(gutterWidth(), y + fontMetrics().ascent() + fontMetrics().leading() / 2, line.text);
    painter.restore();
}
