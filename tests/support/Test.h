#pragma once

#include <QtTest>
#include <QtWidgets>

/// Makes a test class known to its room's runner, which is generated from the file names: a file
/// XTest.cpp holds a class XTest, closes with KAART_TEST(XTest) and includes "XTest.moc".
#define KAART_TEST(Class)                                                                          \
    int run##Class(const QStringList& arguments) {                                                 \
        Class test;                                                                                \
        return QTest::qExec(&test, arguments);                                                     \
    }
