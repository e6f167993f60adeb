#pragma once

#include "host/core/FExport.h"
#include "host/core/FManaged.h"

/** The reader of a script that is at work: what commands tell it while they are carried out. */
class MERIX_EXPORT FCmdParser {
 public:
    /** The one at work; null if no script is being read. */
    static FCmdParser* currentParser();

    virtual ~FCmdParser() = default;

    /** A creator has made an object. */
    virtual void addObject(const FExpr<FManaged>& object) { Q_UNUSED(object) }

    /** An object is about to be changed by a command of the script: it becomes part of the step. */
    static void willAct(FObject* receiver);

 protected:
    /** At work for the life of the object. */
    class Activation {
     public:
        explicit Activation(FCmdParser* parser);
        ~Activation();
        Activation(const Activation&) = delete;
        Activation& operator=(const Activation&) = delete;

     private:
        FCmdParser* mpBefore;
    };
};
