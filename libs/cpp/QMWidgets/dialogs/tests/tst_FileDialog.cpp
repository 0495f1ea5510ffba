#include "FileDialog.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

using QMWidgets::FileDialog;

// The file choosers: on a parent through a local loop, without one through
// Qt's own; an accepted dialog gives the chosen files, a cancelled one nothing.
class tst_FileDialog : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    // Answers the first file dialog that shows, as a person would.
    void answerDialog(const std::function<void(QFileDialog*)>& answer)
    {
        auto* poll = new QTimer(this);
        connect(poll, &QTimer::timeout, this, [poll, answer]() {
            for (QWidget* window : QApplication::topLevelWidgets()) {
                auto* dialog = qobject_cast<QFileDialog*>(window);
                if (dialog && dialog->isVisible()) {
                    poll->deleteLater();
                    poll->stop();
                    answer(dialog);
                    return;
                }
            }
        });
        poll->start(10);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        for (const char* name : { "a.wav", "b.mp3", "c.mp3" }) {
            QFile file(m_dir.filePath(QLatin1String(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    void choose_data()
    {
        QTest::addColumn<QString>("function");
        QTest::addColumn<bool>("withParent");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QStringList>("chosen");
        QTest::addColumn<QStringList>("expected");
        const QStringList one { QStringLiteral("b.mp3") };
        const QStringList two { QStringLiteral("b.mp3"), QStringLiteral("c.mp3") };
        const QStringList newName { QStringLiteral("take.wav") };
        for (const bool withParent : { true, false }) {
            const QByteArray on = withParent ? " on a parent" : " without parent";
            QTest::newRow("open" + on) << "open" << withParent << true << one << one;
            QTest::newRow("open, cancelled" + on) << "open" << withParent << false << one << QStringList();
            QTest::newRow("open several" + on) << "openFiles" << withParent << true << two << two;
            QTest::newRow("open several, cancelled" + on) << "openFiles" << withParent << false << two << QStringList();
            QTest::newRow("save" + on) << "save" << withParent << true << newName << newName;
            QTest::newRow("save, cancelled" + on) << "save" << withParent << false << newName << QStringList();
        }
    }

    void choose()
    {
        QFETCH(QString, function);
        QFETCH(bool, withParent);
        QFETCH(bool, accepted);
        QFETCH(QStringList, chosen);
        QFETCH(QStringList, expected);
        QWidget window;
        window.show();
        QWidget* parent = withParent ? &window : nullptr;
        QPointer<QWidget> dialogParent;
        QFileDialog::FileMode mode = QFileDialog::AnyFile;
        Qt::WindowModality modality = Qt::NonModal;
        answerDialog([&](QFileDialog* dialog) {
            dialogParent = dialog->parentWidget();
            mode = dialog->fileMode();
            modality = dialog->windowModality();
            if (!accepted) {
                dialog->reject();
                return;
            }
            // Typed into the name field, several names each in quotes.
            QStringList quoted;
            for (const QString& name : chosen)
                quoted << QLatin1Char('"') + name + QLatin1Char('"');
            auto* nameField = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            QVERIFY(nameField);
            nameField->setText(chosen.size() == 1 ? chosen.first() : quoted.join(QLatin1Char(' ')));
            static_cast<QDialog*>(dialog)->accept();
            // A dialog that refused the answer must not keep the test waiting.
            if (dialog->isVisible())
                dialog->reject();
        });

        QString filter = QStringLiteral("Mp3 (*.mp3)");
        const QString filters = QStringLiteral("Wave (*.wav);;Mp3 (*.mp3);;All (*)");
        QStringList result;
        QFileDialog::FileMode expectedMode = QFileDialog::ExistingFile;
        if (function == QLatin1String("open")) {
            result << FileDialog::getOpenFileName(parent, QStringLiteral("Open"), m_dir.path(), filters, &filter);
            result.removeAll(QString());
        } else if (function == QLatin1String("save")) {
            expectedMode = QFileDialog::AnyFile;
            result << FileDialog::getSaveFileName(parent, QStringLiteral("Save"), m_dir.path(), filters, &filter);
            result.removeAll(QString());
        } else {
            expectedMode = QFileDialog::ExistingFiles;
            result = FileDialog::getOpenFileNames(parent, QStringLiteral("Open"), m_dir.path(), filters, &filter);
        }

        QCOMPARE(dialogParent.data(), parent);
        // Open on its parent, the dialog blocks only that window; Qt's own blocks all.
        QCOMPARE(modality, withParent ? Qt::WindowModal : Qt::ApplicationModal);
        QCOMPARE(mode, expectedMode);
        QStringList expectedPaths;
        for (const QString& name : expected)
            expectedPaths << m_dir.filePath(name);
        QCOMPARE(result, expectedPaths);
        // The filter that was chosen before comes back as chosen.
        QCOMPARE(filter, QStringLiteral("Mp3 (*.mp3)"));
    }
};

QTEST_MAIN(tst_FileDialog)
#include "tst_FileDialog.moc"
