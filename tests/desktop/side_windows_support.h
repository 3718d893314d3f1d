#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <functional>

#include "desktop/toolkit/lines_model.h"
#include "session/office_fixture.h"

namespace quillmark::desktop {

/// Does to the modal window that comes next what a person would; fails if none comes.
class WhenOpened {
 public:
    explicit WhenOpened(std::function<void(QWidget&)> act) : act_(std::move(act)) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_,
                         [this, before = QPointer(QApplication::activeModalWidget())] {
                             QWidget* window = QApplication::activeModalWidget();
                             if (!window || window == before) return;
                             timer_.stop();
                             came_ = true;
                             act_(*window);
                         });
        timer_.start(5);
    }
    ~WhenOpened() { EXPECT_TRUE(came_) << "no window was opened"; }
    WhenOpened(const WhenOpened&) = delete;
    WhenOpened& operator=(const WhenOpened&) = delete;

 private:
    std::function<void(QWidget&)> act_;
    QTimer timer_;
    bool came_ = false;
};

/// An office with the main window's place taken by an empty one.
class SideWindowTest : public test::OfficeTest {
 protected:
    SideWindowTest() { parent.show(); }

    static void Show(QWidget& window) {
        window.show();
        QApplication::setActiveWindow(&window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// A key to what has the focus in that window.
    static void Press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, key, modifiers);
    }
    /// Each letter to what has the focus by then.
    static void Type(QWidget& window, std::string_view text) {
        for (const char letter : text) QTest::keyClick(window.focusWidget(), letter);
    }
    static void DoubleClick(QAbstractItemView& view, const QModelIndex& index) {
        view.scrollTo(index);
        const QPoint place = view.visualRect(index).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
    }
    static QStringList LinesOf(const LinesView& list) {
        QStringList lines;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            lines.push_back(list.model()->index(row, 0).data().toString());
        return lines;
    }
    void WriteData(std::string_view name, std::string_view bytes) {
        test::WriteBytes(scratch.path() / "data" / std::string(name), bytes);
    }

    QWidget parent;
};

}  // namespace quillmark::desktop
