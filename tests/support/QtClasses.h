#pragma once

// The classes of Qt that most tests work with; precompiled, so that they cost nothing.
#include <QDir>
#include <QFile>
#include <QMimeData>
#include <QRandomGenerator>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#ifdef QVDC_WITH_WIDGETS
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDropEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#endif
