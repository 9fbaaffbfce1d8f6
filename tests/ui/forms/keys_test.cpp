#include "support/test_class.h"
#include "ui/forms/control.h"
#include "ui/forms/keys.h"

#include <QKeyEvent>

using namespace torvik;

namespace {

int CodeOf(int key, Qt::KeyboardModifiers held = {})
{
    return KeyCodeOf(QKeyEvent(QEvent::KeyPress, key, held));
}

int ShiftOf(Qt::KeyboardModifiers held)
{
    return ShiftStateOf(QKeyEvent(QEvent::KeyPress, Qt::Key_A, held));
}

} // namespace

/// Key codes as the handlers know them.
class KeysTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void comma_and_period_have_their_codes()
    {
        QCOMPARE(CodeOf(Qt::Key_Comma), key::comma);
        QCOMPARE(CodeOf(Qt::Key_Comma), 188);
        QCOMPARE(CodeOf(Qt::Key_Period), key::period);
        QCOMPARE(CodeOf(Qt::Key_Period, Qt::ShiftModifier), 190); // where the layout has it there
    }

    void characters_that_come_from_no_key_of_a_keyboard_tell_by_themselves()
    {
        QCOMPARE(CodeOf(Qt::Key_Less, Qt::ShiftModifier), 188);
        QCOMPARE(CodeOf(Qt::Key_Greater, Qt::ShiftModifier), 190);
    }

    void a_key_of_its_own_for_less_and_greater_is_another_key()
    {
        constexpr quint32 scanCode = 94;
        const auto pressed = [](int key, Qt::KeyboardModifiers held) {
            return KeyCodeOf(QKeyEvent(QEvent::KeyPress, key, held, scanCode, 0, 0));
        };
        QCOMPARE(pressed(Qt::Key_Less, {}), 0);
        QCOMPARE(pressed(Qt::Key_Greater, Qt::ShiftModifier), 0);
        QCOMPARE(pressed(Qt::Key_Comma, {}), 188);
    }

    void the_decimal_key_of_the_keypad_is_another_key()
    {
        QCOMPARE(CodeOf(Qt::Key_Period, Qt::KeypadModifier), 0);
        QCOMPARE(CodeOf(Qt::Key_Comma, Qt::KeypadModifier), 0);
    }

    void letters_and_digits_are_their_own_code()
    {
        QCOMPARE(CodeOf(Qt::Key_A), 65);
        QCOMPARE(CodeOf(Qt::Key_Z, Qt::ShiftModifier), 90);
        QCOMPARE(CodeOf(Qt::Key_0), 48);
        QCOMPARE(CodeOf(Qt::Key_9), 57);
    }

    void space_enter_and_escape()
    {
        QCOMPARE(CodeOf(Qt::Key_Space), key::space);
        QCOMPARE(CodeOf(Qt::Key_Return), 13);
        QCOMPARE(CodeOf(Qt::Key_Enter, Qt::KeypadModifier), 13);
        QCOMPARE(CodeOf(Qt::Key_Escape), 27);
    }

    void keys_that_walk_and_search_have_their_codes()
    {
        QCOMPARE(CodeOf(Qt::Key_PageUp), 33);
        QCOMPARE(CodeOf(Qt::Key_PageDown), 34);
        QCOMPARE(CodeOf(Qt::Key_Up), 38);
        QCOMPARE(CodeOf(Qt::Key_Down), 40);
        QCOMPARE(CodeOf(Qt::Key_F3), 114);
        QCOMPARE(CodeOf(Qt::Key_F, Qt::ControlModifier), key::letterF);
    }

    void other_keys_have_none()
    {
        for (const int key : {int(Qt::Key_F1), int(Qt::Key_Left), int(Qt::Key_Tab), int(Qt::Key_Shift),
                              int(Qt::Key_Semicolon), 0x00e4, 0})
            QCOMPARE(CodeOf(key), 0);
    }

    void the_shift_state_adds_up()
    {
        QCOMPARE(ShiftOf({}), 0);
        QCOMPARE(ShiftOf(Qt::ShiftModifier), 1);
        QCOMPARE(ShiftOf(Qt::ControlModifier), 2);
        QCOMPARE(ShiftOf(Qt::AltModifier), 4);
        QCOMPARE(ShiftOf(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::KeypadModifier), 7);
    }
};

TORVIK_APPLESS_TEST(KeysTest)
#include "keys_test.moc"
