#pragma once

#include "orvwidgets_export.h"

#include <QColor>
#include <QTextListFormat>
#include <QWidget>

#include <memory>

class QAction;
class QComboBox;
class QTextCharFormat;
class QTextEdit;
class QToolBar;

namespace OrvWidgets {

class OrvTextEditor2Private;

/// Rich text editor: a tool bar of formatting actions over a QTextEdit. Loads and
/// saves Markdown, HTML and plain text, saves OpenDocument text, and optionally
/// offers a background colour for the whole text (off until enabled).
class ORVWIDGETS_EXPORT OrvTextEditor2 : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged)
    Q_PROPERTY(bool backgroundColorEnabled READ isBackgroundColorEnabled WRITE enableBackgroundColor)
public:
    /*! File formats: Auto picks one from the file name; OpenDocument can be saved only. */
    enum Format { Auto, Markdown, Html, PlainText, OpenDocument };
    Q_ENUM(Format)

    /// Every user operation of the editor; action() hands them out, e.g. for menus.
    enum Action {
        Bold,
        Italic,
        Underline,
        StrikeOut,
        TextColor,
        FontGrow,
        FontShrink,
        AlignLeft,
        AlignCenter,
        AlignRight,
        AlignJustify,
        BulletList,
        NumberedList,
        NormalText,
        Heading1,
        Heading2,
        Heading3,
        Undo,
        Redo,
        BackgroundColor,
        FocusToolBar
    };
    Q_ENUM(Action)

    /*! An empty editor with its tool bar; the background colour choice is off. */
    explicit OrvTextEditor2(QWidget* parent = nullptr);
    ~OrvTextEditor2() override;

    /// The inner editor holding the document.
    QTextEdit* textEdit() const;
    /*! The tool bar of formatting actions, owned by the editor. */
    QToolBar* toolBar() const;
    /*! The action for \a which, owned by the editor; never null. */
    QAction* action(Action which) const;

    /// Background colour: the colour chosen or set initially; until then the
    /// text edit's base colour.
    QColor backgroundColor() const;
    /*! True when the background colour choice is offered. */
    bool isBackgroundColorEnabled() const;

    /// Format by file name suffix: .md/.markdown, .html/.htm, .txt, .odt; Auto if unknown.
    static Format formatForFileName(const QString& fileName);
    /// Replaces the document with the file's content (UTF-8). On failure the
    /// document stays as it was, *errorMessage explains and false is returned.
    /// OpenDocument files can be saved but not loaded.
    bool load(const QString& fileName, QString* errorMessage = nullptr);
    /// Writes the document; Auto picks the format from the suffix.
    bool save(const QString& fileName, Format format = Auto, QString* errorMessage = nullptr) const;

public Q_SLOTS:
    /// Shows or hides the background colour choice (hidden by default).
    void enableBackgroundColor(bool enable);
    /// Sets the background colour without emitting backgroundColorChanged; an
    /// invalid colour goes back to the text edit's base colour.
    void setInitialBackgroundColor(const QColor& color);
    /// Sets the background colour and emits backgroundColorChanged when it
    /// changes; invalid colours are ignored.
    void setBackgroundColor(const QColor& color);

    /// Formatting of the selection (character formats: of the text typed next
    /// when nothing is selected) and of the blocks it touches.
    void setFontPointSize(qreal size);
    /*! Colours the selection, or the text typed next. */
    void setTextColor(const QColor& color);
    /*! Aligns the blocks the selection touches. */
    void setAlignment(Qt::Alignment alignment);
    /// QTextListFormat::ListStyleUndefined takes the blocks out of their list.
    void setListStyle(QTextListFormat::Style style);
    /// 0: normal paragraph, 1 to 3: heading.
    void setHeadingLevel(int level);

Q_SIGNALS:
    /*! Emitted when the background colour changed through setBackgroundColor() or the user's
        choice. */
    void backgroundColorChanged(const QColor& color);

protected:
    /// Asks the user for a colour; an invalid colour means cancelled.
    virtual QColor chooseColor(const QColor& current, const QString& title);
    /*! \reimp */
    void changeEvent(QEvent* event) override;
    /*! \reimp */
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createActions();
    void createToolBar();
    void connectActions();
    void retranslate();
    void updateCharActions(const QTextCharFormat& format);
    void updateBlockActions();
    void updateEnabled();
    void mergeCharFormat(const QTextCharFormat& format);
    void toggleList(bool numbered);
    void chooseTextColor();
    void chooseBackgroundColor();
    void stepFontSize(int direction);
    void applyBackground();
    bool fail(const char* operation, const QString& message, QString* errorMessage) const;

    std::unique_ptr<OrvTextEditor2Private> d;
};

} // namespace OrvWidgets
