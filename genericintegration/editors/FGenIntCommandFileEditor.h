#pragma once

#include "genericintegration/editors/FEditBuffer.h"
#include "genericintegration/editors/FTemplateColors.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "host/core/FView.h"
#include "host/gui/base/FObjectPage.h"
#include "host/gui/base/FProblemWatch.h"

#include <QFrame>

#include <memory>

class FConnectorInterface;
class FGenIntCommandFileEdit;
class FNavigator;
class FTemplateReports;
class FWrittenTextView;
class QLineEdit;
class QToolButton;
struct FWrittenText;

/**
 * The page of an input template: a row with the mode and the name, a strip with what is wrong, the text, and beside it,
 * if wanted, what the present values make of it. Style sheets can set its colours, which all pages share.
 */
class FGenIntCommandFileEditor : public FClass<FGenIntCommandFileEditor, QFrame, FView>, public FObjectPage {
    Q_OBJECT
    Q_PROPERTY(QColor highlight_color_TagForeground READ getTagForeground WRITE setTagForeground)
    Q_PROPERTY(QColor highlight_color_TagBackground READ getTagBackground WRITE setTagBackground)
    Q_PROPERTY(QColor highlight_color_TagErrorForeground READ getTagErrorForeground WRITE setTagErrorForeground)
    Q_PROPERTY(QColor highlight_color_TagErrorBackground READ getTagErrorBackground WRITE setTagErrorBackground)
    Q_PROPERTY(QColor highlight_color_ValueForeground READ getValueForeground WRITE setValueForeground)
    Q_PROPERTY(QColor highlight_color_ValueBackground READ getValueBackground WRITE setValueBackground)
    Q_PROPERTY(QColor highlight_color_ValueErrorForeground READ getValueErrorForeground WRITE setValueErrorForeground)
    Q_PROPERTY(QColor highlight_color_ValueErrorBackground READ getValueErrorBackground WRITE setValueErrorBackground)
    Q_PROPERTY(
        QColor highlight_color_PossibleValueForeground READ getPossibleValueForeground WRITE setPossibleValueForeground)
    Q_PROPERTY(
        QColor highlight_color_PossibleValueBackground READ getPossibleValueBackground WRITE setPossibleValueBackground)
    Q_PROPERTY(QColor highlight_color_ButtonTagColor READ getButtonTagColor WRITE setButtonTagColor)
    Q_PROPERTY(QColor highlight_color_ButtonEntryColor READ getButtonEntryColor WRITE setButtonEntryColor)

 public:
    static FClassData mClass;
    static constexpr bool needsWindows = true;

    FGenIntCommandFileEditor();
    /** @param computation  may be empty: then it is the first one that uses the template */
    FGenIntCommandFileEditor(QWidget* parent, const FExpr<FGenIntCommandFile>& file,
                             const FExpr<FGenIntComputation>& computation);
    ~FGenIntCommandFileEditor() override;

    const FExpr<FGenIntCommandFile>& getCommandFile() const { return mCommandFile; }
    /** An empty handle drops the text. */
    void setCommandFile(const FExpr<FGenIntCommandFile>& file);
    const FExpr<FGenIntComputation>& getComputation() const { return mComputation; }
    void setComputation(const FExpr<FGenIntComputation>& computation) { mComputation = computation; }
    /** Where a click on a tag and on a problem leads; null for nowhere. */
    void setNavigator(FNavigator* navigator) { mpNavigator = navigator; }
    /** The connectors that show the computation. */
    QList<FConnectorInterface*> getSoftwareConnectors() const;
    /** True in plain mode, in which no numbers and no buttons are offered. */
    bool isWriteModeActivated() const;
    void setFocusToEditor();
    /** Writes the text into the template, as a step of its own if there is no other. */
    void setAlteredText();
    FEditBuffer& buffer() { return *mpBuffer; }
    FGenIntCommandFileEdit& edit() { return *mpEdit; }

    QWidget* widget() override { return this; }
    void goTo(int line, int column) override;
    void letGo() override;

    static QColor getTagForeground() { return FTemplateColors::instance().tagForeground; }
    static void setTagForeground(const QColor& color) { FTemplateColors::set(&FTemplateColors::tagForeground, color); }
    static QColor getTagBackground() { return FTemplateColors::instance().tagBackground; }
    static void setTagBackground(const QColor& color) { FTemplateColors::set(&FTemplateColors::tagBackground, color); }
    static QColor getTagErrorForeground() { return FTemplateColors::instance().tagErrorForeground; }
    static void setTagErrorForeground(const QColor& color) {
        FTemplateColors::set(&FTemplateColors::tagErrorForeground, color);
    }
    static QColor getTagErrorBackground() { return FTemplateColors::instance().tagErrorBackground; }
    static void setTagErrorBackground(const QColor& color) {
        FTemplateColors::set(&FTemplateColors::tagErrorBackground, color);
    }
    static QColor getValueForeground() { return FTemplateColors::instance().valueForeground; }
    static void setValueForeground(const QColor& color) {
        FTemplateColors::set(&FTemplateColors::valueForeground, color);
    }
    static QColor getValueBackground() { return FTemplateColors::instance().valueBackground; }
    static void setValueBackground(const QColor& color) {
        FTemplateColors::set(&FTemplateColors::valueBackground, color);
    }
    static QColor getValueErrorForeground() { return FTemplateColors::instance().valueErrorForeground; }
    static void setValueErrorForeground(const QColor& color) {
        FTemplateColors::set(&FTemplateColors::valueErrorForeground, color);
    }
    static QColor getValueErrorBackground() { return FTemplateColors::instance().valueErrorBackground; }
    static void setValueErrorBackground(const QColor& color) {
        FTemplateColors::set(&FTemplateColors::valueErrorBackground, color);
    }
    static QColor getPossibleValueForeground() { return FTemplateColors::instance().possibleValueForeground; }
    static void setPossibleValueForeground(const QColor& color) {
        FTemplateColors::set(&FTemplateColors::possibleValueForeground, color);
    }
    static QColor getPossibleValueBackground() { return FTemplateColors::instance().possibleValueBackground; }
    static void setPossibleValueBackground(const QColor& color) {
        FTemplateColors::set(&FTemplateColors::possibleValueBackground, color);
    }
    static QColor getButtonTagColor() { return FTemplateColors::instance().buttonTagColor; }
    static void setButtonTagColor(const QColor& color) {
        FTemplateColors::set(&FTemplateColors::buttonTagColor, color);
    }
    static QColor getButtonEntryColor() { return FTemplateColors::instance().buttonEntryColor; }
    static void setButtonEntryColor(const QColor& color) {
        FTemplateColors::set(&FTemplateColors::buttonEntryColor, color);
    }

 public slots:
    void refresh();
    void fileNameChanged();
    void startTextAltering();

 signals:
    void gotFocus();

 protected:
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    void init();
    QWidget* makeBar();
    QWidget* makeTexts();
    void listen();
    /** The values of the computation, or else of the first one that uses the template; null if there are none. */
    FConfigurationCustom* configuration() const;
    void showName();
    void changeMode();
    void markConfiguration();
    void modelChanged();
    void showProblems();
    QStringList notices() const;
    void correct(const QString& wrong, const QString& right);
    void showEntry(const QString& name);
    FWrittenText writtenText() const;

    FExpr<FGenIntCommandFile> mCommandFile;
    FExpr<FGenIntComputation> mComputation;
    FNavigator* mpNavigator = nullptr;
    FGenIntCommandFileEdit* mpEdit = nullptr;
    FEditBuffer* mpBuffer = nullptr;
    QLineEdit* mpNameEdit = nullptr;
    QToolButton* mpModeButton = nullptr;
    QToolButton* mpValuesButton = nullptr;
    FTemplateReports* mpReports = nullptr;
    FWrittenTextView* mpWritten = nullptr;
    std::shared_ptr<FProblemWatch> mpProblems;
};
