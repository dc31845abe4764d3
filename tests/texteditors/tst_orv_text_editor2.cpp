#include <orv_text_editor2.h>

#include <QtTest>
#include <QtWidgets>

using namespace OrvWidgets;

namespace {
// Answers colour questions without a modal dialog.
struct Editor : OrvTextEditor2
{
    QColor answer;
    int asked = 0;
    QColor chooseColor(const QColor&, const QString&) override { return ++asked, answer; }
};

QTextCharFormat formatAt(const OrvTextEditor2* e, int position)
{
    return e->textEdit()->document()->findBlock(position).begin().fragment().charFormat(); // first run of the block
}

bool fontFlag(const QTextCharFormat& f, int which)
{
    const bool flags[] = {f.fontWeight() > QFont::Normal, f.fontItalic(), f.fontUnderline(), f.fontStrikeOut()};
    return flags[which];
}

// One line per block with what a format keeps: text only, Markdown's share (full false) or all of it.
QStringList describe(const QTextDocument* document, bool formats, bool full)
{
    QStringList lines;
    for (QTextBlock b = document->begin(); b.isValid(); b = b.next()) {
        const int style = b.textList() ? b.textList()->format().style() : 0;
        const int kind = full ? style : style < -3 ? 2 : style < 0; // Markdown knows bullets and numbers only
        QString line = QStringLiteral("h%1 list%2 align%3 ").arg(b.blockFormat().headingLevel()).arg(kind);
        line = formats ? line.arg(full ? int(b.blockFormat().alignment() & 0xf) : 0) : QString();
        QString last;
        for (auto it = b.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat f = it.fragment().charFormat();
            QString flags;
            for (int i = 0; formats && i < 4; ++i)
                flags += fontFlag(f, i) && (full || i != 2) ? QLatin1Char("bius"[i]) : QLatin1Char('-');
            const qreal size =
                f.hasProperty(QTextFormat::FontPointSize) ? f.fontPointSize() : document->defaultFont().pointSizeF();
            flags += full ? QString::number(size) + f.foreground().color().name() : QString();
            line += (flags == last ? QString() : QLatin1Char('{') + flags + QLatin1Char('}')) + it.fragment().text();
            last = flags;
        }
        lines << line;
    }
    return lines;
}
} // namespace

class TestOrvTextEditor2 : public QObject
{
    Q_OBJECT
    QTemporaryDir m_dir;
    QWidget* m_window = nullptr;
    Editor* m_other = nullptr;
    Editor* m_editor = nullptr;

    QTextDocument* document() const { return m_editor->textEdit()->document(); }

private Q_SLOTS:
    // Two editors in one window; the second has the focus and its text selected.
    void init()
    {
        m_window = new QWidget;
        auto* layout = new QVBoxLayout(m_window);
        layout->addWidget(m_other = new Editor);
        layout->addWidget(m_editor = new Editor);
        m_other->textEdit()->setPlainText(QStringLiteral("Other"));
        m_editor->textEdit()->setPlainText(QStringLiteral("Hello world\nSecond line"));
        m_window->resize(1000, 400);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        m_editor->textEdit()->setFocus();
        m_editor->textEdit()->selectAll();
    }
    void cleanup() { delete m_window; }

    void charFormats_data()
    {
        QTest::addColumn<int>("action");
        QTest::addColumn<QString>("keys");
        QTest::newRow("bold") << int(OrvTextEditor2::Bold) << "Ctrl+B";
        QTest::newRow("italic") << int(OrvTextEditor2::Italic) << "Ctrl+I";
        QTest::newRow("underline") << int(OrvTextEditor2::Underline) << "Ctrl+U";
        QTest::newRow("strike") << int(OrvTextEditor2::StrikeOut) << "Ctrl+Shift+X";
    }
    void charFormats()
    {
        QFETCH(int, action);
        QFETCH(QString, keys);
        QAction* a = m_editor->action(OrvTextEditor2::Action(action));
        QTest::keySequence(m_editor->textEdit(), QKeySequence(keys));
        QVERIFY(fontFlag(formatAt(m_editor, 0), action) && fontFlag(formatAt(m_editor, 14), action));
        QVERIFY(a->isChecked());
        QVERIFY(!fontFlag(formatAt(m_other, 0), action));
        a->trigger();
        QVERIFY(!fontFlag(formatAt(m_editor, 0), action) && !fontFlag(formatAt(m_editor, 14), action));
        QVERIFY(!a->isChecked());
    }

    void blockFormats_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<int>("alignment");
        QTest::addColumn<int>("heading");
        QTest::addColumn<int>("listStyle");
        const int left = Qt::AlignLeft, disc = QTextListFormat::ListDisc, decimal = QTextListFormat::ListDecimal;
        QTest::newRow("centre") << "Ctrl+E" << int(Qt::AlignHCenter) << 0 << 0;
        QTest::newRow("right") << "Ctrl+R" << int(Qt::AlignRight) << 0 << 0;
        QTest::newRow("justify") << "Ctrl+J" << int(Qt::AlignJustify) << 0 << 0;
        QTest::newRow("left again") << "Ctrl+J, Ctrl+L" << left << 0 << 0;
        QTest::newRow("heading 3") << "Ctrl+3" << left << 3 << 0;
        QTest::newRow("normal") << "Ctrl+2, Ctrl+0" << left << 0 << 0;
        QTest::newRow("bullets") << "Ctrl+Shift+8" << left << 0 << disc;
        QTest::newRow("numbers") << "Ctrl+Shift+7" << left << 0 << decimal;
        QTest::newRow("bullets off") << "Ctrl+Shift+8, Ctrl+Shift+8" << left << 0 << 0;
        QTest::newRow("bullets to numbers") << "Ctrl+Shift+8, Ctrl+Shift+7" << left << 0 << decimal;
    }
    void blockFormats()
    {
        QFETCH(QString, keys);
        QFETCH(int, alignment);
        QFETCH(int, heading);
        QFETCH(int, listStyle);
        QTest::keySequence(m_editor->textEdit(), QKeySequence(keys));
        for (const QTextBlock& b : {document()->firstBlock(), document()->lastBlock()}) {
            QCOMPARE(int(b.blockFormat().alignment() & 0xf), alignment);
            QCOMPARE(b.blockFormat().headingLevel(), heading);
            QCOMPARE(b.textList() ? int(b.textList()->format().style()) : 0, listStyle);
            QCOMPARE(b.textList(), document()->firstBlock().textList());
            QCOMPARE(b.blockFormat().indent(), 0);
        }
        QCOMPARE(formatAt(m_editor, 0).fontWeight() > QFont::Normal, heading > 0);
        QCOMPARE(m_editor->findChild<QComboBox*>("blockStyle")->currentData().toInt(), heading);
        QCOMPARE(m_editor->action(OrvTextEditor2::BulletList)->isChecked(), listStyle == QTextListFormat::ListDisc);
    }

    void listStylesFromCombo()
    {
        auto* combo = m_editor->findChild<QComboBox*>("listStyle");
        for (int i = combo->count() - 1; i >= 0; --i) {
            Q_EMIT combo->activated(i);
            const QTextList* list = document()->lastBlock().textList();
            QCOMPARE(list ? int(list->format().style()) : 0, combo->itemData(i).toInt());
            QCOMPARE(document()->firstBlock().textList(), list);
            QCOMPARE(combo->currentIndex(), i);
        }
    }

    void sizeAndColour()
    {
        auto* sizes = m_editor->findChild<QComboBox*>("fontSize");
        Q_EMIT sizes->textActivated(QStringLiteral("18"));
        QCOMPARE(formatAt(m_editor, 14).fontPointSize(), 18.0);
        QTest::keySequence(m_editor->textEdit(), QKeySequence("Ctrl+]"));
        QCOMPARE(formatAt(m_editor, 0).fontPointSize(), 20.0);
        m_editor->answer = Qt::red;
        QTest::keySequence(m_editor->textEdit(), QKeySequence("Ctrl+Shift+C"));
        m_editor->answer = QColor(); // cancelled
        m_editor->action(OrvTextEditor2::TextColor)->trigger();
        QCOMPARE(m_editor->asked, 2);
        QCOMPARE(formatAt(m_editor, 14).foreground().color(), QColor(Qt::red));
    }

    void undoRedo()
    {
        QTextEdit* edit = m_editor->textEdit();
        QVERIFY(!m_editor->action(OrvTextEditor2::Undo)->isEnabled());
        QTest::keySequence(edit, QKeySequence("Ctrl+1")); // one step for both blocks
        QVERIFY(m_editor->action(OrvTextEditor2::Undo)->isEnabled());
        QTest::keySequence(edit, QKeySequence("Ctrl+Z"));
        QCOMPARE(document()->lastBlock().blockFormat().headingLevel(), 0);
        QCOMPARE(formatAt(m_editor, 0).fontWeight(), int(QFont::Normal));
        QVERIFY(m_editor->action(OrvTextEditor2::Redo)->isEnabled());
        QTest::keySequence(edit, QKeySequence("Ctrl+Shift+Z"));
        QCOMPARE(document()->lastBlock().blockFormat().headingLevel(), 1);
    }

    void readOnlyAndKeyboard()
    {
        QTextEdit* edit = m_editor->textEdit();
        edit->setReadOnly(true);
        QVERIFY(!m_editor->action(OrvTextEditor2::Bold)->isEnabled());
        m_editor->setHeadingLevel(2);
        QCOMPARE(document()->firstBlock().blockFormat().headingLevel(), 0);
        edit->setReadOnly(false);
        QVERIFY(m_editor->action(OrvTextEditor2::Bold)->isEnabled());
        QTest::keySequence(edit, QKeySequence("Alt+F10"));
        QVERIFY(m_editor->toolBar()->isAncestorOf(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(QApplication::focusWidget(), edit);
    }

    void backgroundColour()
    {
        QSignalSpy spy(m_editor, &OrvTextEditor2::backgroundColorChanged);
        QAction* action = m_editor->action(OrvTextEditor2::BackgroundColor);
        const auto painted = [this] {
            const QImage image = m_editor->textEdit()->viewport()->grab().toImage();
            return image.pixelColor(image.width() - 3, image.height() - 3);
        };
        QVERIFY(!m_editor->toolBar()->widgetForAction(action)->isVisible());
        m_editor->answer = Qt::blue;
        QTest::keySequence(m_editor->textEdit(), QKeySequence("Ctrl+Shift+B"));
        QCOMPARE(m_editor->asked, 0);
        m_editor->setInitialBackgroundColor(Qt::yellow);
        QCOMPARE(painted(), QColor(Qt::yellow));
        m_editor->enableBackgroundColor(true);
        QTRY_VERIFY(m_editor->toolBar()->widgetForAction(action)->isVisible());
        QTest::keySequence(m_editor->textEdit(), QKeySequence("Ctrl+Shift+B"));
        action->trigger(); // the same colour again
        m_editor->answer = QColor();
        action->trigger(); // cancelled
        QCOMPARE(m_editor->asked, 3);
        QCOMPARE(spy, QList<QVariantList>{{QColor(Qt::blue)}});
        QCOMPARE(m_editor->backgroundColor(), QColor(Qt::blue));
        QCOMPARE(painted(), QColor(Qt::blue));
    }

    void roundTrip_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<bool>("formats");
        QTest::addColumn<bool>("full");
        QTest::newRow("markdown") << "a.markdown" << true << false;
        QTest::newRow("html") << "c.html" << true << true;
        QTest::newRow("htm") << "d.HTM" << true << true;
        QTest::newRow("plain text") << "e.txt" << false << false;
    }
    void roundTrip()
    {
        QFETCH(QString, fileName);
        QFETCH(bool, formats);
        QFETCH(bool, full);
        m_editor->textEdit()->setHtml(QStringLiteral(
            "<h2>Title \u00e4\u00df\u20ac</h2><p><b>Bold</b> <i>italic</i> <s>struck</s> <u>under</u></p>"
            "<ul><li>one</li><li>two</li></ul><ol type=\"A\"><li>alpha</li></ol>"
            "<p align=\"center\"><span style=\"color:#ff0000; font-size:18pt\">red</span></p>"
            "<p align=\"justify\">plain <b><i>both</i></b></p>"));
        const QString path = m_dir.filePath(fileName);
        QVERIFY(m_editor->save(path));
        Editor fresh;
        QString error;
        QVERIFY2(fresh.load(path, &error), qPrintable(error));
        QCOMPARE(describe(fresh.textEdit()->document(), formats, full), describe(document(), formats, full));
    }

    void badInput_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QByteArray>("content"); // null: create nothing
        QTest::newRow("missing") << "missing.md" << QByteArray();
        QTest::newRow("unreadable") << "locked.md" << QByteArray("# fine");
        QTest::newRow("unknown suffix") << "text.doc" << QByteArray("fine");
        QTest::newRow("cut-off UTF-8") << "cut.md" << QByteArray("Euro \xe2\x82");
        QTest::newRow("folder") << "folder.html" << QByteArray("dir");
        QTest::newRow("save: no folder") << "none/x.md" << QByteArray("save");
        QTest::newRow("save: unknown suffix") << "x.doc" << QByteArray("save");
        QTest::newRow("open document: saved, not loaded") << "doc.odt" << QByteArray("odt");
    }
    void badInput()
    {
        QFETCH(QString, fileName);
        QFETCH(QByteArray, content);
        const QString path = m_dir.filePath(fileName);
        const bool saving = content == "save";
        QFile file(path);
        if (content == "dir")
            QVERIFY(QDir(m_dir.path()).mkpath(fileName));
        else if (content == "odt")
            QVERIFY(m_editor->save(path) && file.open(QIODevice::ReadOnly)
                    && file.peek(2) == "PK" && file.readAll().contains("application/vnd.oasis.opendocument.text"));
        else if (!content.isNull() && !saving)
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        if (fileName.startsWith(QLatin1String("locked")) && file.setPermissions({}) && file.open(QIODevice::ReadOnly))
            QSKIP("Running with rights that ignore file permissions");
        const QString before = document()->toHtml();
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(saving ? "^OrvTextEditor2::save: " : "^OrvTextEditor2::load: "));
        QString error;
        QVERIFY(saving ? !m_editor->save(path, OrvTextEditor2::Auto, &error) : !m_editor->load(path, &error));
        QVERIFY2(error.contains(QDir::toNativeSeparators(path)), qPrintable(error));
        QCOMPARE(document()->toHtml(), before);
    }

    void retranslation()
    {
        struct Prefixing : QTranslator
        {
            bool isEmpty() const override { return false; }
            QString translate(const char* c, const char* source, const char*, int) const override
            {
                return qstrcmp(c, "OrvWidgets::OrvTextEditor2") ? QString() : "X-" + QString::fromUtf8(source);
            }
        } translator;
        QCoreApplication::installTranslator(&translator);
        QAction* bold = m_editor->action(OrvTextEditor2::Bold);
        QTRY_COMPARE(bold->text(), QStringLiteral("X-Bold"));
        QVERIFY(bold->toolTip().startsWith("X-") &&
                bold->toolTip().contains(bold->shortcut().toString(QKeySequence::NativeText)));
        QCOMPARE(m_editor->findChild<QComboBox*>("blockStyle")->itemText(1), QStringLiteral("X-Heading 1"));
        QCoreApplication::removeTranslator(&translator);
        QTRY_COMPARE(bold->text(), QStringLiteral("Bold"));
    }
};

QTEST_MAIN(TestOrvTextEditor2)
#include "tst_orv_text_editor2.moc"
