#pragma once

#include <QString>

class FObject;
class FSoftConDialog;
class FSoftConScene;
class FSoftwareConnector;

/** Asks for files, and makes items of a connector of them. */
class FItemDialogs {
 public:
    FItemDialogs(FSoftwareConnector& connector, FSoftConScene& scene) : mConnector(connector), mScene(scene) {}

    void addInput();
    void addOutput();
    void addImport();

 private:
    void addItem(FSoftConDialog& dialog, const FObject* type, const QString& label);
    QString startFolder(bool isInput) const;
    /** Where the program runs; empty if it hasn't run yet. */
    QString runFolder() const;

    FSoftwareConnector& mConnector;
    FSoftConScene& mScene;
};
