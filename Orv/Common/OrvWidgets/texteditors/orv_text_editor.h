#pragma once

#include "orv_text_editor2.h"
#include "orvwidgets_export.h"

#include <QWidget>

#include <memory>

class QLabel;
class QTextEdit;
class QToolBar;

namespace OrvWidgets {

class OrvTextEditorPrivate;

/*! The compact editor for short formatted texts: a message to participants, a comment
    in a table.

    One row of the essential formatting actions (bold, italic, underline, bullet and
    numbered list) sits above the text; the full editor's other shortcuts stay available.
    An optional character limit is shown by a live counter ("42 / 160") and enforced on
    every way in: typing stops at the limit, and a paste or drop is cut to what still fits.
    When input is refused, the counter turns to the warning colour, says so and
    limitReached() is emitted. In plain-text mode the formatting row and its shortcuts are
    gone and pasted text arrives without formatting.

    Loading and saving (HTML, Markdown, plain text; OpenDocument on save) are those of
    OrvTextEditor2, on which this editor is built. */
class ORVWIDGETS_EXPORT OrvTextEditor : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString html READ html WRITE setHtml NOTIFY textChanged USER true)
    Q_PROPERTY(int maximumLength READ maximumLength WRITE setMaximumLength NOTIFY maximumLengthChanged)
    Q_PROPERTY(bool plainTextMode READ isPlainTextMode WRITE setPlainTextMode NOTIFY plainTextModeChanged)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
public:
    /*! An empty editor without a limit, in rich-text mode. */
    explicit OrvTextEditor(QWidget* parent = nullptr);
    ~OrvTextEditor() override;

    /*! The text as HTML (in plain-text mode, the plain text wrapped as HTML). */
    QString html() const;
    /*! Replaces the text with \a html, cut to the limit; emits textChanged(). */
    void setHtml(const QString& html);
    /*! The text without formatting. */
    QString plainText() const;
    /*! Replaces the text with \a text, cut to the limit; emits textChanged(). */
    void setPlainText(const QString& text);
    /*! The text as Markdown. */
    QString markdown() const;
    /*! Replaces the text with \a markdown, cut to the limit; emits textChanged(). */
    void setMarkdown(const QString& markdown);

    /*! The number of characters of the text (line breaks count as one each). */
    int length() const;
    /*! The most characters the text may have; 0 (the default) means no limit. */
    int maximumLength() const;
    /*! Sets the limit (negative counts as 0, no limit); a longer text is cut at once.
        Emits maximumLengthChanged() on a change. */
    void setMaximumLength(int length);

    /*! True in plain-text mode (false by default). */
    bool isPlainTextMode() const;
    /*! Turns plain-text mode on or off; turning it on drops the formatting of the text.
        Emits plainTextModeChanged() on a change. */
    void setPlainTextMode(bool plain);

    /*! True when the text cannot be changed. */
    bool isReadOnly() const;
    /*! Makes the text read-only or editable; the formatting row follows. */
    void setReadOnly(bool readOnly);

    /*! Loads \a fileName as OrvTextEditor2::load() does, then cuts the text to the limit
        (and to plain text in plain-text mode). On failure the text stays as it was, false
        is returned and \a errorMessage (if given) says why. */
    bool load(const QString& fileName, QString* errorMessage = nullptr);
    /*! Saves as OrvTextEditor2::save() does. */
    bool save(const QString& fileName, OrvTextEditor2::Format format = OrvTextEditor2::Auto,
              QString* errorMessage = nullptr) const;

    /*! The text edit holding the document, owned by the editor. */
    QTextEdit* textEdit() const;
    /*! The formatting row, owned by the editor. */
    QToolBar* toolBar() const;
    /*! The counter label, owned by the editor; hidden without a limit. */
    QLabel* counterLabel() const;

Q_SIGNALS:
    /*! Emitted whenever the text changed. */
    void textChanged();
    /*! Emitted when input was refused or cut because the limit was reached. */
    void limitReached();
    /*! Emitted when the limit changed. */
    void maximumLengthChanged(int length);
    /*! Emitted when plain-text mode was turned on or off. */
    void plainTextModeChanged(bool plain);

protected:
    /*! \reimp */
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<OrvTextEditorPrivate> const d;
};

} // namespace OrvWidgets
