#pragma once

#include <QtTest/QTest>

/** A double click of a user, with the left button, which QTest alone would leave pressed for the tests that follow. */
inline void doubleClick(QWidget* widget, const QPoint& place) {
    QTest::mouseClick(widget, Qt::LeftButton, {}, place);
    QTest::mouseDClick(widget, Qt::LeftButton, {}, place);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, place);
}
