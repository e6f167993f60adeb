<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>reference</name>
    <message>
        <source>!FComputationResults</source>
        <translation>Results of a run of a computation: they know how the run ended, and whether the set-up has changed since. The classes of results with numbers are based on this one.</translation>
    </message>
    <message>
        <source>!FComputationResults:example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("true"); .setArguments([]) }
solver.run()
print(solver.getResults().getState())</translation>
    </message>
    <message>
        <source>!FComputationResults.member.getSetUpChanges()</source>
        <translation>What has changed in the set-up since the run: values of entries, settings of the program, contents of input templates. The numbers of the results belong to the earlier set-up. Results of a design are compared while the computation has that design.</translation>
    </message>
    <message>
        <source>!FComputationResults.member.getSetUpChanges():example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("true"); .setArguments([]) }
solver.run()
cruise.setEntryValue("span", 14)
print(solver.getResults().getSetUpChanges())</translation>
    </message>
    <message>
        <source>!FComputationResults.member.getSetUpChanges():returnValue</source>
        <comment>return type: stringContainer</comment>
        <translation>One text for each change, such as "span was 12.5, is 14"; an empty list if nothing has changed.</translation>
    </message>
    <message>
        <source>!FComputationResults.member.getState()</source>
        <translation>The state of the run that the results belong to, as getState() of a computation. If the set-up has changed since, ", of an earlier set-up" and the changes follow.</translation>
    </message>
    <message>
        <source>!FComputationResults.member.getState():example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("true"); .setArguments([]) }
solver.run()
cruise.setEntryValue("span", 14)
print(solver.getResults().getState())</translation>
    </message>
    <message>
        <source>!FComputationResults.member.getState():returnValue</source>
        <comment>return type: string</comment>
        <translation>Such as "finished", or "finished, of an earlier set-up (span was 12.5, is 14)".</translation>
    </message>
    <message>
        <source>!FConfiguration</source>
        <translation>Values for the entries of a definition. Several configurations can share one definition. When entries are added, removed or renamed there, the configuration follows and keeps the values of those that remain.</translation>
    </message>
    <message>
        <source>!FConfiguration.member.getEntryValue(string,path)</source>
        <translation>The present value of an entry, with its expression evaluated. A number is always a floating point number.</translation>
    </message>
    <message>
        <source>!FConfiguration.member.getEntryValue(string,path):argument0</source>
        <translation>The path; case matters. With an index where the entry may occur several times.</translation>
    </message>
    <message>
        <source>!FConfiguration.member.getEntryValue(string,path):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
print(cruise.getEntryValue("Geometry|span") / 2)</translation>
    </message>
    <message>
        <source>!FConfiguration.member.getEntryValue(string,path):returnValue</source>
        <comment>return type: FObject</comment>
        <translation>The value; NULL if it has none, or with a warning if there is no such entry.</translation>
    </message>
    <message>
        <source>!FConfiguration.member.setEntryValue(string,path,expression,value)</source>
        <translation>Sets the value of an entry. It stays an expression and follows the parameters, entries and results that it names; variables of the script are replaced by their present value. It is evaluated when the input files are written; the results of another computation are read then, but that computation isn't run. It may use only functions and commands that change nothing. An entry without a value is written as SHOULD_BE_EXPORTED. An unknown path, or a value that would depend on itself, is refused with a warning.</translation>
    </message>
    <message>
        <source>!FConfiguration.member.setEntryValue(string,path,expression,value):argument0</source>
        <translation>The path; case matters. Where an entry may occur several times, with an index from 0, as in flap|angle[1]; a missing occurrence is made.</translation>
    </message>
    <message>
        <source>!FConfiguration.member.setEntryValue(string,path,expression,value):argument1</source>
        <translation>The value or expression; NULL takes the value away.</translation>
    </message>
    <message>
        <source>!FConfiguration.member.setEntryValue(string,path,expression,value):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
parameter span(14)
cruise.setEntryValue("Geometry|span", format(span / 2, "%8.3f"))
span.setValue(16)
print(cruise.getEntryValue("Geometry|span"))</translation>
    </message>
    <message>
        <source>!FConfiguration.member.setEntryValue(string,path,expression,value):returnValue</source>
        <comment>return type: FConfiguration</comment>
        <translation>The configuration; NULL if the value was refused.</translation>
    </message>
    <message>
        <source>!FConfiguration:example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
cruise.setEntryValue("Geometry|span", 14)
print(cruise.getEntryValue("Geometry|span"))</translation>
    </message>
    <message>
        <source>!FConfigurationCustom</source>
        <translation>A configuration from which input files are written. Entries can name files: inputFile, resultsFileName and geometryExport tell what is done with them.</translation>
    </message>
    <message>
        <source>!FConfigurationCustom.attribute.setDefinition(FDefinitionCustom,definition)</source>
        <translation>Sets the definition whose entries the configuration gives values to. Entries with a default start with it. Generic configurations have a command of the same name that takes generic definitions only.</translation>
    </message>
    <message>
        <source>!FConfigurationCustom.attribute.setDefinition(FDefinitionCustom,definition):argument0</source>
        <translation>The definition; NULL for none.</translation>
    </message>
    <message>
        <source>!FConfigurationCustom.attribute.setDefinition(FDefinitionCustom,definition):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise()
cruise.setDefinition(wing)</translation>
    </message>
    <message>
        <source>!FConfigurationCustom.member.getPreviewText(string,fileName)</source>
        <translation>The text of an input file as a run would write it now. No file is touched. A value that needs files to be read, such as the result of another computation, is shown as its expression. Forced Windows line ends aren't shown, and a tag that names a file through Exports is left out, with a message. A file that the configuration doesn't write gives NULL, with a warning.</translation>
    </message>
    <message>
        <source>!FConfigurationCustom.member.getPreviewText(string,fileName):argument0</source>
        <translation>The file name as the template has it; case matters.</translation>
    </message>
    <message>
        <source>!FConfigurationCustom.member.getPreviewText(string,fileName):example</source>
        <translation>genericIntegrationCommandFile in1() { .setContent("span &lt;entry&gt;Geometry|span&lt;/entry&gt;"); .setFileName("wing.inp") }
genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5); .setFiles([in1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
print(cruise.getPreviewText("wing.inp"))</translation>
    </message>
    <message>
        <source>!FConfigurationCustom.member.getPreviewText(string,fileName):returnValue</source>
        <comment>return type: string</comment>
        <translation>The text, or NULL.</translation>
    </message>
    <message>
        <source>!FConfigurationCustom:example</source>
        <translation>genericIntegrationCommandFile in1() { .setContent("span &lt;entry&gt;Geometry|span&lt;/entry&gt;"); .setFileName("wing.inp") }
genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5); .setFiles([in1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
print(cruise.getPreviewText("wing.inp"))</translation>
    </message>
    <message>
        <source>!FConfigurationGenInt</source>
        <translation>The values that one design has for the entries of an integration. Several configurations can share a definition, each for a computation of its own.</translation>
    </message>
    <message>
        <source>!FConfigurationGenInt.attribute.setDefinition(FDefinitionGenInt,definition)</source>
        <translation>Sets the definition whose entries the configuration gives values to. The entries start with their default values. Those of a definition set before go, with their values. A definition of another kind gives NULL, with a warning.</translation>
    </message>
    <message>
        <source>!FConfigurationGenInt.attribute.setDefinition(FDefinitionGenInt,definition):argument0</source>
        <translation>The definition; NULL for none.</translation>
    </message>
    <message>
        <source>!FConfigurationGenInt.attribute.setDefinition(FDefinitionGenInt,definition):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise()
cruise.setDefinition(wing)
print(cruise.getEntryValue("Geometry|span"))</translation>
    </message>
    <message>
        <source>!FConfigurationGenInt.creator.genericIntegrationConfiguration(bool,initializeConfiguration=false)</source>
        <translation>Makes a configuration; setDefinition gives it its entries.</translation>
    </message>
    <message>
        <source>!FConfigurationGenInt.creator.genericIntegrationConfiguration(bool,initializeConfiguration=false):argument0</source>
        <translation>Whether all entries are made at once; since setDefinition makes them, it need not be given.</translation>
    </message>
    <message>
        <source>!FConfigurationGenInt.creator.genericIntegrationConfiguration(bool,initializeConfiguration=false):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }</translation>
    </message>
    <message>
        <source>!FConfigurationGenInt.creator.genericIntegrationConfiguration(bool,initializeConfiguration=false):returnValue</source>
        <comment>return type: FConfigurationGenInt</comment>
        <translation>The configuration.</translation>
    </message>
    <message>
        <source>!FConfigurationGenInt:example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationConfiguration landing() { .setDefinition(wing); .setEntryValue("Geometry|span", 14) }
print(cruise.getEntryValue("Geometry|span"), landing.getEntryValue("Geometry|span"))</translation>
    </message>
    <message>
        <source>!FCustomComputation</source>
        <translation>A computation whose input comes from a configuration. Before the program starts, the files that entries name are copied or exported into the folder of the run.</translation>
    </message>
    <message>
        <source>!FCustomComputation.attribute.setCmdFile(string,fileName)</source>
        <translation>Sets the file that gets a line "path = value" for each entry before the program starts, in the order of the paths. Generic computations write their input templates instead, and don't offer this command.</translation>
    </message>
    <message>
        <source>!FCustomComputation.attribute.setCmdFile(string,fileName):argument0</source>
        <translation>The name, relative to the folder of the run; "" for none.</translation>
    </message>
    <message>
        <source>!FCustomComputation.attribute.setCmdFile(string,fileName):example</source>
        <translation>getObjects("FCustomComputation").setCmdFile("input.txt")</translation>
    </message>
    <message>
        <source>!FCustomComputation.attribute.setConfiguration(FConfigurationCustom,configuration)</source>
        <translation>Sets the configuration that gives the input of the runs. One that depends on the results of this very computation is refused with a message.</translation>
    </message>
    <message>
        <source>!FCustomComputation.attribute.setConfiguration(FConfigurationCustom,configuration):argument0</source>
        <translation>The configuration; NULL for none.</translation>
    </message>
    <message>
        <source>!FCustomComputation.attribute.setConfiguration(FConfigurationCustom,configuration):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver()
solver.setConfiguration(cruise)</translation>
    </message>
    <message>
        <source>!FCustomComputation.member.exportSetUp(string,fileName,bool,chain=false)</source>
        <translation>Writes the whole set-up to an exchange file: definition, templates, configuration with its values, computation, and the connector if there is one. An import reads the file into another project. A file of that name is replaced in one step, or stays as it is if the new one can't be written. A warning names each object that a value, a template or the computation needs and that isn't in the file.</translation>
    </message>
    <message>
        <source>!FCustomComputation.member.exportSetUp(string,fileName,bool,chain=false):argument0</source>
        <translation>The file, in general with the ending .lodm. $NAME, ${NAME}, %NAME% and a leading ~ are expanded. A relative name starts at the folder of the script if the file lies there, otherwise at the current folder.</translation>
    </message>
    <message>
        <source>!FCustomComputation.member.exportSetUp(string,fileName,bool,chain=false):argument1</source>
        <translation>True: also writes the set-ups of all computations that this one uses results of, and of all that use its results, at any distance.</translation>
    </message>
    <message>
        <source>!FCustomComputation.member.exportSetUp(string,fileName,bool,chain=false):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise) }
print(solver.exportSetUp("solver.lodm", true))</translation>
    </message>
    <message>
        <source>!FCustomComputation.member.exportSetUp(string,fileName,bool,chain=false):returnValue</source>
        <comment>return type: bool</comment>
        <translation>False, with a message, if the file can't be written, or if the computation has no configuration with a definition.</translation>
    </message>
    <message>
        <source>!FCustomComputation.member.getResults()</source>
        <translation>The results of the last run, or of the run in progress. After a new run the earlier object keeps its numbers.</translation>
    </message>
    <message>
        <source>!FCustomComputation.member.getResults():example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTableNames())</translation>
    </message>
    <message>
        <source>!FCustomComputation.member.getResults():returnValue</source>
        <comment>return type: FComputationResults</comment>
        <translation>The results; NULL before the first run.</translation>
    </message>
    <message>
        <source>!FCustomComputation:example</source>
        <translation>genericIntegrationDefinition wing() {}
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getState())</translation>
    </message>
    <message>
        <source>!FDefinition</source>
        <translation>Which entries there are: the inputs of an integration, each with a default value. An entry is named by its path, groups first, as in Geometry|span. Names may hold anything but | [ ] &lt; &gt; and line ends. Configurations hold values for the entries and follow each change of the definition.</translation>
    </message>
    <message>
        <source>!FDefinition.member.addEntry(string,path,FObject,default,int,count=1,int,leastCount=-1,bool,hidden=false,string,description="",string,type="")</source>
        <translation>Adds an entry, and the groups of its path that are missing. The configurations of the definition get it at once, with its default. A number is kept as a floating point number, also a whole one. An entry without default and type is a group. A path that exists, or that leads through an entry with a value, is refused with a warning.</translation>
    </message>
    <message>
        <source>!FDefinition.member.addEntry(string,path,FObject,default,int,count=1,int,leastCount=-1,bool,hidden=false,string,description="",string,type=""):argument0</source>
        <translation>The path, groups first; at most 50 levels, with "|" between them.</translation>
    </message>
    <message>
        <source>!FDefinition.member.addEntry(string,path,FObject,default,int,count=1,int,leastCount=-1,bool,hidden=false,string,description="",string,type=""):argument1</source>
        <translation>The default value: a number, a text, a truth value or a file such as inputFile("mesh.dat"); NULL for none. An expression is evaluated once.</translation>
    </message>
    <message>
        <source>!FDefinition.member.addEntry(string,path,FObject,default,int,count=1,int,leastCount=-1,bool,hidden=false,string,description="",string,type=""):argument2</source>
        <translation>How often the entry may occur, 1 to 10000. Above 1, its occurrences are flap|angle[0], flap|angle[1] and so on; a tag has no index and gets the value of the first one.</translation>
    </message>
    <message>
        <source>!FDefinition.member.addEntry(string,path,FObject,default,int,count=1,int,leastCount=-1,bool,hidden=false,string,description="",string,type=""):argument3</source>
        <translation>How often it occurs from the start, 0 to count; -1 for count. Further occurrences are made when setEntryValue names them; one is always there.</translation>
    </message>
    <message>
        <source>!FDefinition.member.addEntry(string,path,FObject,default,int,count=1,int,leastCount=-1,bool,hidden=false,string,description="",string,type=""):argument4</source>
        <translation>Whether windows hide it.</translation>
    </message>
    <message>
        <source>!FDefinition.member.addEntry(string,path,FObject,default,int,count=1,int,leastCount=-1,bool,hidden=false,string,description="",string,type=""):argument5</source>
        <translation>A text for the user.</translation>
    </message>
    <message>
        <source>!FDefinition.member.addEntry(string,path,FObject,default,int,count=1,int,leastCount=-1,bool,hidden=false,string,description="",string,type=""):argument6</source>
        <translation>Without a default: the class that values have, such as "FDouble" or "FString"; "" makes a group.</translation>
    </message>
    <message>
        <source>!FDefinition.member.addEntry(string,path,FObject,default,int,count=1,int,leastCount=-1,bool,hidden=false,string,description="",string,type=""):example</source>
        <translation>genericIntegrationDefinition wing()
wing.addEntry("Geometry|span", 12.5).addEntry("airfoil", "naca2412").addEntry("flap|angle", 5, 3)
print(wing.getEntryNames())</translation>
    </message>
    <message>
        <source>!FDefinition.member.addEntry(string,path,FObject,default,int,count=1,int,leastCount=-1,bool,hidden=false,string,description="",string,type=""):returnValue</source>
        <comment>return type: FDefinition</comment>
        <translation>The definition; NULL if the entry was refused.</translation>
    </message>
    <message>
        <source>!FDefinition.member.getEntryNames()</source>
        <translation>The paths of all entries that hold values, in the order of the definition. Groups aren't among them, and an entry that may occur several times is there once, without index.</translation>
    </message>
    <message>
        <source>!FDefinition.member.getEntryNames():example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
for (path in wing.getEntryNames()) { print(path) }</translation>
    </message>
    <message>
        <source>!FDefinition.member.getEntryNames():returnValue</source>
        <comment>return type: stringContainer</comment>
        <translation>The paths.</translation>
    </message>
    <message>
        <source>!FDefinition.member.removeEntry(string,path)</source>
        <translation>Removes an entry, or a group with all below it. The configurations lose its values, and expressions that ask for them give NULL, with a warning. In the input templates its default value takes the place of its tags, so that the files stay whole; without a default the tags stay.</translation>
    </message>
    <message>
        <source>!FDefinition.member.removeEntry(string,path):argument0</source>
        <translation>The path; case matters.</translation>
    </message>
    <message>
        <source>!FDefinition.member.removeEntry(string,path):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
wing.removeEntry("Geometry|span")
print(wing.getEntryNames())</translation>
    </message>
    <message>
        <source>!FDefinition.member.removeEntry(string,path):returnValue</source>
        <comment>return type: FDefinition</comment>
        <translation>The definition; NULL if there is no such entry.</translation>
    </message>
    <message>
        <source>!FDefinition.member.renameEntry(string,path,string,newName)</source>
        <translation>Renames an entry or a group. The values in the configurations stay; the tags in the input templates get the new path, also those of all entries below a group. Expressions that read the old path with getEntryValue don't follow: they give NULL, with a warning, until they are set again. A name that the group has already is refused with a warning.</translation>
    </message>
    <message>
        <source>!FDefinition.member.renameEntry(string,path,string,newName):argument0</source>
        <translation>The present path; case matters.</translation>
    </message>
    <message>
        <source>!FDefinition.member.renameEntry(string,path,string,newName):argument1</source>
        <translation>The new name of its last level, without the groups.</translation>
    </message>
    <message>
        <source>!FDefinition.member.renameEntry(string,path,string,newName):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
wing.renameEntry("Geometry|span", "wing span")
print(wing.getEntryNames())</translation>
    </message>
    <message>
        <source>!FDefinition.member.renameEntry(string,path,string,newName):returnValue</source>
        <comment>return type: FDefinition</comment>
        <translation>The definition; NULL if nothing was renamed.</translation>
    </message>
    <message>
        <source>!FDefinition.member.setEntryDefault(string,path,FObject,default)</source>
        <translation>Changes the default of an entry. Entries of configurations that have the default get the new one; those with a value of their own keep it. A value of another class changes the type of the entry.</translation>
    </message>
    <message>
        <source>!FDefinition.member.setEntryDefault(string,path,FObject,default):argument0</source>
        <translation>The path of the entry; case matters.</translation>
    </message>
    <message>
        <source>!FDefinition.member.setEntryDefault(string,path,FObject,default):argument1</source>
        <translation>A number, a text, a truth value or a file. NULL takes the default away.</translation>
    </message>
    <message>
        <source>!FDefinition.member.setEntryDefault(string,path,FObject,default):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
wing.setEntryDefault("Geometry|span", 14)
print(cruise.getEntryValue("Geometry|span"))</translation>
    </message>
    <message>
        <source>!FDefinition.member.setEntryDefault(string,path,FObject,default):returnValue</source>
        <comment>return type: FDefinition</comment>
        <translation>The definition; NULL if nothing was changed.</translation>
    </message>
    <message>
        <source>!FDefinition:example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
print(wing.getEntryNames(), cruise.getEntryValue("Geometry|span"))</translation>
    </message>
    <message>
        <source>!FDefinitionCustom</source>
        <translation>A definition that can be kept in a file of its own and moved between projects: base of the definitions that plug-ins bring.</translation>
    </message>
    <message>
        <source>!FDefinitionCustom.member.save(string,fileName="")</source>
        <translation>Writes the definition to an exchange file: its entries, and what belongs to it, such as the templates of an integration. Values of configurations are not in it. A file of that name is replaced in one step, or stays as it is if the new one can't be written. The name is remembered as long as the program runs.</translation>
    </message>
    <message>
        <source>!FDefinitionCustom.member.save(string,fileName=""):argument0</source>
        <translation>The file, in general with the ending .lodm. $NAME, ${NAME}, %NAME% and a leading ~ are expanded. A relative name starts at the folder of the script if the file lies there, otherwise at the current folder. Without it the file of the last time is written.</translation>
    </message>
    <message>
        <source>!FDefinitionCustom.member.save(string,fileName=""):example</source>
        <translation>genericIntegrationCommandFile in1() { .setContent("span = &lt;entry&gt;span&lt;/entry&gt;"); .setFileName("wing.inp") }
genericIntegrationDefinition wing() { .addEntry("span", 12.5); .setFiles([in1]) }
print(wing.save("wing.lodm"))</translation>
    </message>
    <message>
        <source>!FDefinitionCustom.member.save(string,fileName=""):returnValue</source>
        <comment>return type: bool</comment>
        <translation>False, with a message, if the file can't be written or there is none yet.</translation>
    </message>
    <message>
        <source>!FDefinitionCustom:example</source>
        <translation>genericIntegrationCommandFile in1() { .setContent("span = &lt;entry&gt;span&lt;/entry&gt;"); .setFileName("wing.inp") }
genericIntegrationDefinition wing() { .addEntry("span", 12.5); .setFiles([in1]) }
print(wing.save("wing.lodm"))</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt</source>
        <translation>The description of one integration of an external program: its entries, and the templates of the files that the program reads and writes. A tag in an input template names an entry by its path.</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt.attribute.setCurFile(FGenIntFile,currentFile)</source>
        <translation>Remembers which template the window of the integration shows. Projects use it; it has no effect on a run.</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt.attribute.setCurFile(FGenIntFile,currentFile):argument0</source>
        <translation>A template of the definition; NULL for none.</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt.attribute.setCurFile(FGenIntFile,currentFile):example</source>
        <translation>genericIntegrationCommandFile in1()
genericIntegrationDefinition wing() { .setFiles([in1]) }
wing.setCurFile(in1)</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt.attribute.setFiles(FCONTAINER,files)</source>
        <translation>Sets the template files, input templates and result templates in one list. The input templates are written before each run, the others are read after it, in this order. The list is replaced as a whole; a file that isn't in it any more lives on. A file that is listed twice is written or read twice.</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt.attribute.setFiles(FCONTAINER,files):argument0</source>
        <translation>The templates; [] for none.</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt.attribute.setFiles(FCONTAINER,files):example</source>
        <translation>genericIntegrationCommandFile in1() { .setFileName("wing.inp") }
genericIntegrationDefinition wing()
wing.setFiles([in1])
print(getAttribute(wing, "setFiles"))</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt.attribute.setLastFile(FGenIntFile,lastFile)</source>
        <translation>Remembers which template the window of the integration showed before the present one. Projects use it; it has no effect on a run.</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt.attribute.setLastFile(FGenIntFile,lastFile):argument0</source>
        <translation>A template of the definition; NULL for none.</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt.attribute.setLastFile(FGenIntFile,lastFile):example</source>
        <translation>genericIntegrationCommandFile in1()
genericIntegrationDefinition wing() { .setFiles([in1]) }
wing.setLastFile(in1)</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt.creator.genericIntegrationDefinition()</source>
        <translation>Makes a definition without entries and files; addEntry and setFiles fill it.</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt.creator.genericIntegrationDefinition():example</source>
        <translation>genericIntegrationCommandFile in1() { .setContent("span &lt;entry&gt;Geometry|span&lt;/entry&gt;"); .setFileName("wing.inp") }
genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["span", 0, 0, "span", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5); .setFiles([in1, out1]) }</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt.creator.genericIntegrationDefinition():returnValue</source>
        <comment>return type: FDefinitionGenInt</comment>
        <translation>The definition.</translation>
    </message>
    <message>
        <source>!FDefinitionGenInt:example</source>
        <translation>genericIntegrationCommandFile in1() { .setContent("span &lt;entry&gt;Geometry|span&lt;/entry&gt;"); .setFileName("wing.inp") }
genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["span", 0, 0, "span", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5); .setFiles([in1, out1]) }
print(wing.getEntryNames())</translation>
    </message>
    <message>
        <source>!FExternComputation</source>
        <translation>A computation by an external program: the settings of the program, and its runs. The program is started without a shell, in its own folder: &lt;project&gt;.results/baseline/&lt;name of the computation&gt; next to the project file, or a temporary folder until the project is saved. When merix ends, even by a crash, the programs that it has started end too, with all their child processes.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setAllowedExitCodes(FCONTAINER,codes)</source>
        <translation>Sets the exit codes with which the program succeeds. With any other code the run fails. An empty list, and numbers below 0 or above 255, are refused with a message.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setAllowedExitCodes(FCONTAINER,codes):argument0</source>
        <translation>The exit codes; [0] by default.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setAllowedExitCodes(FCONTAINER,codes):example</source>
        <translation>genericIntegrationComputation solver()
solver.setAllowedExitCodes([0, 2])</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setArguments(FCONTAINER,arguments)</source>
        <translation>Sets the arguments of the program. Each text of the list is passed to the program as one argument, unchanged. No shell is involved: blanks and quotes need no escaping, and $ and * have no special meaning. Numbers are converted to text. The program runs in the folder of the run, so input files need no path.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setArguments(FCONTAINER,arguments):argument0</source>
        <translation>The list of arguments, in order; [] for none.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setArguments(FCONTAINER,arguments):example</source>
        <translation>genericIntegrationComputation solver()
solver.setArguments(["-i", "cantilever"])</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setConsoleFiles(bool,checked)</source>
        <translation>Whether the output of the program is kept, as stdout.txt and stderr.txt in the folder of the run. Result templates can read these files like any other. Without them, the message about a failed run can't show the last lines of the output.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setConsoleFiles(bool,checked):argument0</source>
        <translation>True, the default, to keep it; false to discard it.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setConsoleFiles(bool,checked):example</source>
        <translation>genericIntegrationComputation solver()
solver.setConsoleFiles(false)</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setDesign(FDesign,design)</source>
        <translation>Sets the design whose folder the next runs use, so that the files of each design are kept. Results of such a run belong to the design: they are saved with the project and read again from that folder. getState() and getResults() are then those of the last run of that design. Refused with a message during a run.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setDesign(FDesign,design):argument0</source>
        <translation>The design; NULL, the default, for the folder "baseline".</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setDesign(FDesign,design):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("true"); .setArguments([]) }
design slender()
solver.setDesign(slender)
solver.run()
print(solver.getWorkingPath())</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setEnvironment(FCONTAINER,variables)</source>
        <translation>Sets environment variables for the program, in addition to those of merix itself; an existing variable is replaced. The list replaces the one that was set before. A text without "=" makes the run fail.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setEnvironment(FCONTAINER,variables):argument0</source>
        <translation>Texts of the form "NAME=value"; [] for none.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setEnvironment(FCONTAINER,variables):example</source>
        <translation>genericIntegrationComputation solver()
solver.setEnvironment(["OMP_NUM_THREADS=4", "LICENSE_FILE=27000@server"])</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setExecutable(string,program)</source>
        <translation>Sets the program. A bare name is searched in the folders of PATH, those of setEnvironment included. A name with a slash is a path; if it is relative, it starts at the folder in which merix was started. A missing program is reported when the run starts, with the places where it was searched.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setExecutable(string,program):argument0</source>
        <translation>The name or path, without arguments; blanks in it are part of the name.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setExecutable(string,program):example</source>
        <translation>genericIntegrationComputation solver()
solver.setExecutable("ccx")</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setForbiddenTexts(FCONTAINER,texts)</source>
        <translation>Sets texts that mustn't appear in a file after the run, such as the message of a solver that ends with exit code 0 although it didn't converge. If one appears, the run fails, and the message gives the line. Upper and lower case differ. A run also fails if the file is missing, unless it is one of the optional files. The files are searched only if the program was started; they are moved aside before the next run.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setForbiddenTexts(FCONTAINER,texts):argument0</source>
        <translation>A list of rules. Each is a list of a file name, relative to the folder of the run, and a text. "stdout.txt" and "stderr.txt" are the output of the program.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setForbiddenTexts(FCONTAINER,texts):example</source>
        <translation>genericIntegrationComputation solver()
solver.setForbiddenTexts([["stdout.txt", "NOT CONVERGED"], ["solver.log", "FATAL"]])</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setMissingAnchors(string,treatment)</source>
        <translation>Sets what it means if a value's anchor isn't in the file. The value is then counted from the start of the file, and is most likely wrong. With "fail", the results are read at the end of the run.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setMissingAnchors(string,treatment):argument0</source>
        <translation>"accept": nothing; "warn", the default: a warning when the results are read; "fail": the run fails.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setMissingAnchors(string,treatment):example</source>
        <translation>genericIntegrationComputation solver()
solver.setMissingAnchors("fail")</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setOptionalFiles(FCONTAINER,files)</source>
        <translation>Sets files that may be missing after a run, although a result template or a rule about texts names them. The values of such a template are NaN.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setOptionalFiles(FCONTAINER,files):argument0</source>
        <translation>File names relative to the folder of the run.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setOptionalFiles(FCONTAINER,files):example</source>
        <translation>genericIntegrationComputation solver()
solver.setOptionalFiles(["buckling.dat"])</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setRequiredTexts(FCONTAINER,texts)</source>
        <translation>Sets texts that must appear in a file after the run. If one is missing, the run fails. Upper and lower case differ. The files are moved aside before the next run.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setRequiredTexts(FCONTAINER,texts):argument0</source>
        <translation>A list of rules. Each is a list of a file name, relative to the folder of the run, and a text.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setRequiredTexts(FCONTAINER,texts):example</source>
        <translation>genericIntegrationComputation solver()
solver.setRequiredTexts([["stdout.txt", "JOB COMPLETED"]])</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setRequiredValues(FCONTAINER,values)</source>
        <translation>Sets results that mustn't be NaN. If one is, or if no result template has a value of that name, the run fails. The results are then read at the end of the run instead of at their first use.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setRequiredValues(FCONTAINER,values):argument0</source>
        <translation>Names of values; "*" stands for all values of all result templates.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setRequiredValues(FCONTAINER,values):example</source>
        <translation>genericIntegrationComputation solver()
solver.setRequiredValues(["mass", "frequency"])</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setStandardInput(string,fileName)</source>
        <translation>Sets the file that the program reads as its standard input. It is in the folder of the run, usually the file of an input template. Without a file, the input is empty. The run fails if the name leads out of the folder, or if the file is missing when the program starts.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setStandardInput(string,fileName):argument0</source>
        <translation>The name, relative to the folder of the run; "" for none.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setStandardInput(string,fileName):example</source>
        <translation>genericIntegrationComputation solver()
solver.setStandardInput("commands.txt")</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setSuspiciousNumbers(string,treatment)</source>
        <translation>Sets what a suspicious number means, one that most likely isn't the number that the program wrote: cut before an exponent with D, in place of asterisks, beside a decimal comma and the like. With "fail", the results are read at the end of the run.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setSuspiciousNumbers(string,treatment):argument0</source>
        <translation>"accept": nothing; "warn", the default: a warning when the results are read; "fail": the run fails.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setSuspiciousNumbers(string,treatment):example</source>
        <translation>genericIntegrationComputation solver()
solver.setSuspiciousNumbers("fail")</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setTimeLimit(double,seconds)</source>
        <translation>Sets the time after which the program is ended, counted from its start. The program and its child processes are first requested to end, and killed five seconds later; the state is then "timed out", and the files written until then can be read. A number below 0 is refused with a message.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setTimeLimit(double,seconds):argument0</source>
        <translation>The limit in seconds; 0, the default, is no limit.</translation>
    </message>
    <message>
        <source>!FExternComputation.attribute.setTimeLimit(double,seconds):example</source>
        <translation>genericIntegrationComputation solver()
solver.setTimeLimit(300)</translation>
    </message>
    <message>
        <source>!FExternComputation.member.cancel()</source>
        <translation>Ends the run in progress: the program and its child processes are requested to end, and killed five seconds later. The state is then "cancelled". In a script this is useful only for runs that were started from a window, since run() waits for the end.</translation>
    </message>
    <message>
        <source>!FExternComputation.member.cancel():example</source>
        <translation>genericIntegrationDefinition wing() {}
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
print(solver.cancel())</translation>
    </message>
    <message>
        <source>!FExternComputation.member.cancel():returnValue</source>
        <comment>return type: bool</comment>
        <translation>False if no run is in progress.</translation>
    </message>
    <message>
        <source>!FExternComputation.member.getExitCode()</source>
        <translation>The exit code of the program in the last run; by convention, 0 is success. A program that wasn't started or was ended by a signal has none.</translation>
    </message>
    <message>
        <source>!FExternComputation.member.getExitCode():example</source>
        <translation>genericIntegrationDefinition wing() {}
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("false"); .setArguments([]) }
solver.run()
print(solver.getExitCode())</translation>
    </message>
    <message>
        <source>!FExternComputation.member.getExitCode():returnValue</source>
        <comment>return type: int</comment>
        <translation>The code, or -1 if there is none.</translation>
    </message>
    <message>
        <source>!FExternComputation.member.getFailureReason()</source>
        <translation>Why the last run had no success: the beginning of its message. It tells the failed runs of a study apart.</translation>
    </message>
    <message>
        <source>!FExternComputation.member.getFailureReason():example</source>
        <translation>genericIntegrationDefinition wing() {}
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("false"); .setArguments([]) }
if (!solver.run()) { print(solver.getState(), solver.getFailureReason()) }</translation>
    </message>
    <message>
        <source>!FExternComputation.member.getFailureReason():returnValue</source>
        <comment>return type: string</comment>
        <translation>The reason; empty after success and before the first run.</translation>
    </message>
    <message>
        <source>!FExternComputation.member.getState()</source>
        <translation>The state of the last run, or of the run in progress: "ready" before the first run, "writing" while the input is written, "running", then "finished" after success, "failed", "cancelled" or "timed out".</translation>
    </message>
    <message>
        <source>!FExternComputation.member.getState():example</source>
        <translation>genericIntegrationDefinition wing() {}
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("false"); .setArguments([]) }
solver.run()
print(solver.getState())</translation>
    </message>
    <message>
        <source>!FExternComputation.member.getState():returnValue</source>
        <comment>return type: string</comment>
        <translation>One of these words.</translation>
    </message>
    <message>
        <source>!FExternComputation.member.getWorkingPath()</source>
        <translation>The folder of the run in progress, else of the last run, else of the next one. It contains the input files, the output files and stdout.txt and stderr.txt.</translation>
    </message>
    <message>
        <source>!FExternComputation.member.getWorkingPath():example</source>
        <translation>genericIntegrationDefinition wing() {}
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(readText(solver.getWorkingPath() + "stdout.txt"))</translation>
    </message>
    <message>
        <source>!FExternComputation.member.getWorkingPath():returnValue</source>
        <comment>return type: string</comment>
        <translation>The absolute path, with a slash at its end.</translation>
    </message>
    <message>
        <source>!FExternComputation.member.rereadResults()</source>
        <translation>Reads the results again from the existing files, with the present result templates, without running the program. Use it after changing templates. It is refused while a run is in progress. A missing file is reported in a message; the other files are read all the same.</translation>
    </message>
    <message>
        <source>!FExternComputation.member.rereadResults():example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
out1.setValues([["CL", 0, 0, "", Last, "FDouble", ""]])
print(solver.rereadResults(), solver.getResults().getDataAt("CL", 0))</translation>
    </message>
    <message>
        <source>!FExternComputation.member.rereadResults():returnValue</source>
        <comment>return type: bool</comment>
        <translation>True if all files that results are read from exist, and there is at least one.</translation>
    </message>
    <message>
        <source>!FExternComputation.member.run(bool,suppliersFirst=false)</source>
        <translation>Runs the program and waits for its end. First, the files of an earlier run are moved to .earlier, so that old results can't be mistaken for new ones; then input files are copied, and exports and input templates are written. A run fails if the input can't be written, if the program isn't found, if it ends by a signal or with an exit code that isn't allowed, if it doesn't write a file that results are read from, or if a rule of the computation is broken. The message then gives the cause, the entries that differ from the run before, the lines of the output that look like a cause, and the folder; the script continues. A script that ignores the result of a failed run ends with code 1. While a run is in progress, a second one is refused.</translation>
    </message>
    <message>
        <source>!FExternComputation.member.run(bool,suppliersFirst=false):argument0</source>
        <translation>True: first runs the computations whose results this one uses, at any distance, each of them only if it has no successful run with the present set-up. If one of them does not succeed, those that use its results are not run, and their state is "not run: upstream failed".</translation>
    </message>
    <message>
        <source>!FExternComputation.member.run(bool,suppliersFirst=false):example</source>
        <translation>genericIntegrationDefinition wing() {}
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
if (!solver.run()) { print("the run ended as:", solver.getState()) }</translation>
    </message>
    <message>
        <source>!FExternComputation.member.run(bool,suppliersFirst=false):returnValue</source>
        <comment>return type: bool</comment>
        <translation>True if the run succeeded.</translation>
    </message>
    <message>
        <source>!FExternComputation:example</source>
        <translation>genericIntegrationDefinition wing() {}
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
if (!solver.run()) { exit(1) }
print(readText(solver.getWorkingPath() + "stdout.txt"))</translation>
    </message>
    <message>
        <source>!FGenIntCommandFile</source>
        <translation>An input template: a sample input file with tags in the places of the values. A tag is &lt;entry&gt;path&lt;/entry&gt;, where the path names an entry of the definition, groups first, as in Geometry|span; case and indices don't matter. A tag &lt;entry&gt;Exports|wing.dat&lt;/entry&gt; becomes the file name of another template of the same definition. Everything else is written unchanged. A tag that names nothing is left out, with a message. After an &lt;entry&gt; without its &lt;/entry&gt; the rest of the file is lost.</translation>
    </message>
    <message>
        <source>!FGenIntCommandFile.creator.genericIntegrationCommandFile()</source>
        <translation>Makes an empty input template. It is written before each run of a computation whose definition lists it, see setFiles.</translation>
    </message>
    <message>
        <source>!FGenIntCommandFile.creator.genericIntegrationCommandFile():example</source>
        <translation>genericIntegrationCommandFile in1() {
    .setContent("span &lt;entry&gt;Geometry|span&lt;/entry&gt;")
    .setFileName("wing.inp")
}</translation>
    </message>
    <message>
        <source>!FGenIntCommandFile.creator.genericIntegrationCommandFile():returnValue</source>
        <comment>return type: FGenIntCommandFile</comment>
        <translation>The template.</translation>
    </message>
    <message>
        <source>!FGenIntCommandFile:example</source>
        <translation>genericIntegrationCommandFile in1() {
    .setContent("span &lt;entry&gt;Geometry|span&lt;/entry&gt; m")
    .setFileName("wing.inp")
}</translation>
    </message>
    <message>
        <source>!FGenIntComputation</source>
        <translation>Runs an external program with the input files that its configuration's templates give, and reads the numbers that the result templates describe from the files that it writes.</translation>
    </message>
    <message>
        <source>!FGenIntComputation.attribute.setConfiguration(FConfigurationGenInt,custom configuration)</source>
        <translation>Sets the configuration that gives the input of the runs. One that depends on the results of this very computation is refused with a message. Without a configuration, a run fails because its input can't be written.</translation>
    </message>
    <message>
        <source>!FGenIntComputation.attribute.setConfiguration(FConfigurationGenInt,custom configuration):argument0</source>
        <translation>The configuration; NULL for none.</translation>
    </message>
    <message>
        <source>!FGenIntComputation.attribute.setConfiguration(FConfigurationGenInt,custom configuration):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver()
solver.setConfiguration(cruise)</translation>
    </message>
    <message>
        <source>!FGenIntComputation.attribute.setConfiguration(FConfigurationGenInt,custom configuration):returnValue</source>
        <comment>return type: FGenIntComputation</comment>
        <translation>The computation.</translation>
    </message>
    <message>
        <source>!FGenIntComputation.creator.genericIntegrationComputation()</source>
        <translation>Makes a computation; before it can run, it needs at least setConfiguration and setExecutable. Its name is that of the folder of its runs.</translation>
    </message>
    <message>
        <source>!FGenIntComputation.creator.genericIntegrationComputation():example</source>
        <translation>genericIntegrationDefinition wing() {}
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
print(solver.run())</translation>
    </message>
    <message>
        <source>!FGenIntComputation.creator.genericIntegrationComputation():returnValue</source>
        <comment>return type: FGenIntComputation</comment>
        <translation>The computation.</translation>
    </message>
    <message>
        <source>!FGenIntComputation.member.getResults()</source>
        <translation>The results of the last run, or of the run in progress. Each run has its own object: one that is stored in a variable keeps its numbers when the computation runs again.</translation>
    </message>
    <message>
        <source>!FGenIntComputation.member.getResults():example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getDataAt("CL", 0))</translation>
    </message>
    <message>
        <source>!FGenIntComputation.member.getResults():returnValue</source>
        <comment>return type: FResultsGenInt</comment>
        <translation>The results; NULL before the first run.</translation>
    </message>
    <message>
        <source>!FGenIntComputation.member.openSoftwareConnector()</source>
        <translation>Shows the window in which the templates of the computation are edited, and makes it at the first time. It belongs to one computation and is locked while that runs. Without windows, as in "merix script", nothing happens.</translation>
    </message>
    <message>
        <source>!FGenIntComputation.member.openSoftwareConnector():example</source>
        <translation>genericIntegrationComputation solver()
solver.openSoftwareConnector()</translation>
    </message>
    <message>
        <source>!FGenIntComputation:example</source>
        <translation>genericIntegrationCommandFile in1() { .setContent("span &lt;entry&gt;Geometry|span&lt;/entry&gt;"); .setFileName("wing.inp") }
genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["span", 0, 0, "span", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5); .setFiles([in1, out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("cat"); .setArguments(["wing.inp"]) }
for (span in [10, 12, 14]) {
    cruise.setEntryValue("Geometry|span", span)
    if (solver.run()) { print(span, solver.getResults().getDataAt("span", 0)) }
}</translation>
    </message>
    <message>
        <source>!FGenIntEditor</source>
        <translation>Stands for the editing of a definition: when the definition is set, a software connector is made for each computation that has it. A computation that has a connector already keeps it; the new one then has no computation.</translation>
    </message>
    <message>
        <source>!FGenIntEditor.attribute.setDefinition(FDefinitionGenInt,definition)</source>
        <translation>Sets the definition to edit, and makes a connector for each computation that has it, named after the computation with the ending _Connector. Returns the editor.</translation>
    </message>
    <message>
        <source>!FGenIntEditor.attribute.setDefinition(FDefinitionGenInt,definition):argument0</source>
        <translation>The definition; NULL for none.</translation>
    </message>
    <message>
        <source>!FGenIntEditor.attribute.setDefinition(FDefinitionGenInt,definition):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise) }
genericIntegrationEditor editor()
editor.setDefinition(wing)</translation>
    </message>
    <message>
        <source>!FGenIntEditor.attribute.setDefinition(FDefinitionGenInt,definition):returnValue</source>
        <comment>return type: FGenIntEditor</comment>
        <translation>The editor.</translation>
    </message>
    <message>
        <source>!FGenIntEditor.creator.genericIntegrationEditor()</source>
        <translation>Makes an editor without a definition.</translation>
    </message>
    <message>
        <source>!FGenIntEditor.creator.genericIntegrationEditor():example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise) }
genericIntegrationEditor editor()
editor.setDefinition(wing)</translation>
    </message>
    <message>
        <source>!FGenIntEditor.creator.genericIntegrationEditor():returnValue</source>
        <comment>return type: FGenIntEditor</comment>
        <translation>The editor.</translation>
    </message>
    <message>
        <source>!FGenIntEditor:example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise) }
genericIntegrationEditor editor()
editor.setDefinition(wing)</translation>
    </message>
    <message>
        <source>!FGenIntFile</source>
        <translation>A template: a sample of one input or output file of the external program, and the name that the real file has in the folder of a run. It is the common part of genericIntegrationCommandFile (a file that is written) and genericIntegrationResultsFile (a file that is read).</translation>
    </message>
    <message>
        <source>!FGenIntFile.attribute.setContent(string,content)</source>
        <translation>Sets the text of the template, in general that of a sample file. In an input template the changing numbers are replaced by tags such as &lt;entry&gt;Geometry|span&lt;/entry&gt;; line ends stay as they are. Results read before go out of date. A text that begins with [B64] is taken as the stored form, Base64 of UTF-8, in which a project keeps it, and is decoded; getAttribute gives that form. Each call is a step that undo takes back, also with the same text.</translation>
    </message>
    <message>
        <source>!FGenIntFile.attribute.setContent(string,content):argument0</source>
        <translation>The text, or its stored form.</translation>
    </message>
    <message>
        <source>!FGenIntFile.attribute.setContent(string,content):example</source>
        <translation>genericIntegrationCommandFile in1()
in1.setContent("span &lt;entry&gt;Geometry|span&lt;/entry&gt;")</translation>
    </message>
    <message>
        <source>!FGenIntFile.attribute.setContent(string,content):returnValue</source>
        <comment>return type: FGenIntFile</comment>
        <translation>The template.</translation>
    </message>
    <message>
        <source>!FGenIntFile.attribute.setFileName(string,fileName)</source>
        <translation>Sets the name of the file in the folder of a run; it can begin with subfolders, which are made where they are missing. A name that leads out of that folder is refused when the file is written or read. Tags that are the old name as a whole get the new one in the input templates of the same definition; a reference such as &lt;entry&gt;Exports|old.dat&lt;/entry&gt; isn't changed.</translation>
    </message>
    <message>
        <source>!FGenIntFile.attribute.setFileName(string,fileName):argument0</source>
        <translation>The name, relative to the folder of the run.</translation>
    </message>
    <message>
        <source>!FGenIntFile.attribute.setFileName(string,fileName):example</source>
        <translation>genericIntegrationCommandFile in1()
in1.setFileName("mesh/wing.inp")</translation>
    </message>
    <message>
        <source>!FGenIntFile.attribute.setFileName(string,fileName):returnValue</source>
        <comment>return type: FGenIntFile</comment>
        <translation>The template.</translation>
    </message>
    <message>
        <source>!FGenIntFile.attribute.setForceWindowsLineEndings(bool,forceWindowsLineEndings)</source>
        <translation>Whether each line feed of the template is written as carriage return and line feed, for programs that want it. For templates with plain line feeds only: a line that ends in both already gets the carriage return twice. Line ends inside of values, and previews, stay as they are. It has no effect on files that are read.</translation>
    </message>
    <message>
        <source>!FGenIntFile.attribute.setForceWindowsLineEndings(bool,forceWindowsLineEndings):argument0</source>
        <translation>True to write Windows line ends; false, the state of a new template, to write them as they are.</translation>
    </message>
    <message>
        <source>!FGenIntFile.attribute.setForceWindowsLineEndings(bool,forceWindowsLineEndings):example</source>
        <translation>genericIntegrationCommandFile in1()
in1.setForceWindowsLineEndings(true)</translation>
    </message>
    <message>
        <source>!FGenIntFile:example</source>
        <translation>genericIntegrationCommandFile in1() {
    .setContent("span &lt;entry&gt;Geometry|span&lt;/entry&gt;")
    .setFileName("wing.inp")
}</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile</source>
        <translation>A result template: a sample of one output file, how its lines are cut into columns, and the list of named values to read from it. After a run each value is a row of the table that has the file's name. A value whose place isn't found is NaN, and the others are read all the same.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.attribute.setNumberSeparator(bool,checked)</source>
        <translation>Whether a column is a number of the line, whatever is between the numbers: column 0 is the first number, column 1 the second. It is so for a new template, and the other separators are ignored meanwhile. Exponents with D aren't part of a number, and digits in a label count as numbers of their own. With false, the other separators define what a column is, and no column is found until one of them is set.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.attribute.setNumberSeparator(bool,checked):argument0</source>
        <translation>True to find numbers, false to cut at separators.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.attribute.setNumberSeparator(bool,checked):example</source>
        <translation>genericIntegrationResultsFile out1()
out1.setNumberSeparator(false)
out1.setSpacesAndTabsSeparator(true)</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.attribute.setRegExprSeparator(string,regularExpression)</source>
        <translation>Sets a regular expression that separates columns; "" for none. It takes effect only after setNumberSeparator(false), which this command doesn't do by itself. Two separators in a row have an empty column between them, which is NaN. An expression that isn't valid separates nothing, with a warning when the file is read. With a back reference (\1) or a look-ahead, (?=…) or (?!…), a line of more than 10000 characters counts as one column, with a warning; so does each further line of a file for which such an expression needs more than 10 seconds.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.attribute.setRegExprSeparator(string,regularExpression):argument0</source>
        <translation>The expression; case matters.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.attribute.setRegExprSeparator(string,regularExpression):example</source>
        <translation>genericIntegrationResultsFile out1()
out1.setNumberSeparator(false)
out1.setRegExprSeparator("[,;]")</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.attribute.setSpacesAndTabsSeparator(bool,checked)</source>
        <translation>Whether blanks and tabs separate columns; any number of them is one separator, and those at the start of a line don't count. It takes effect only after setNumberSeparator(false). Together with a regular expression either of the two separates.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.attribute.setSpacesAndTabsSeparator(bool,checked):argument0</source>
        <translation>True if they separate columns.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.attribute.setSpacesAndTabsSeparator(bool,checked):example</source>
        <translation>genericIntegrationResultsFile out1()
out1.setNumberSeparator(false)
out1.setSpacesAndTabsSeparator(true)</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.attribute.setValues(FObjectList,values)</source>
        <translation>Sets the list of values to read. Each value is a list of nine elements:

name: the name of the row in the table of results
line: 0 is the rest of the anchor's line, after the anchor; 1 is the line below it, -1 the line above. Without an anchor, or if it isn't in the file, 0 is the first line of the file and -1 the last one with text; a number that is found without its anchor is reported by a warning. A line below 0 never reaches the first line of the file: it gives the second one or, if that has the anchor, NaN
column: from 0; setNumberSeparator sets how a line is split into columns
anchor: a text of the file, in any case; "" for none
occurrence: First or Last, if the file has the anchor more than once
type: "FDouble" for a number, "FString" for a text, which getText gives, "FFileName" for the name of a further file to import
import type: for such a file its kind, "text", "table" or "tecplot"; else ""
average: 1 for the mean of the last rows of the file instead of one place; line and anchor then don't count
rows: how many lines from the end; lines without a number don't count in the mean; NULL without an average

The last two can be left out together. An element that is a shorter list, or no list, gives a blank value, with a warning. The list is replaced as a whole.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.attribute.setValues(FObjectList,values):argument0</source>
        <translation>The values, each a list.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.attribute.setValues(FObjectList,values):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("out.dat") }
out1.setValues([["CL", 0, 0, "Force", Last, "FDouble", "", 0, NULL], ["mean CL", 0, 1, "", Last, "FDouble", "", 1, 50]])</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.creator.genericIntegrationResultsFile()</source>
        <translation>Makes an empty result template, which finds numbers in lines and has no values yet. It is read after each run of a computation whose definition lists it, see setFiles.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.creator.genericIntegrationResultsFile():example</source>
        <translation>genericIntegrationResultsFile out1() {
    .setContent("Force  0.52  0.031")
    .setFileName("out.dat")
    .setValues([["CL", 0, 0, "Force", Last, "FDouble", ""], ["CD", 0, 1, "Force", Last, "FDouble", ""]])
}</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.creator.genericIntegrationResultsFile():returnValue</source>
        <comment>return type: FGenIntResultsFile</comment>
        <translation>The template.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.member.setRegExpSeparator(string,regularExpression)</source>
        <translation>The older form of setRegExprSeparator. With an expression that isn't empty it also does setNumberSeparator(false); with "" it takes the expression away and leaves the rest as it is.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.member.setRegExpSeparator(string,regularExpression):argument0</source>
        <translation>The expression; case matters.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.member.setRegExpSeparator(string,regularExpression):example</source>
        <translation>genericIntegrationResultsFile out1()
out1.setRegExpSeparator("[,;]")</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.member.setSpaceSeparator(bool,checked)</source>
        <translation>The older form of setSpacesAndTabsSeparator. With true, blanks and tabs separate columns from now on, and numbers are no longer searched; with false nothing changes.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.member.setSpaceSeparator(bool,checked):argument0</source>
        <translation>True to set it; false has no effect.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.member.setSpaceSeparator(bool,checked):example</source>
        <translation>genericIntegrationResultsFile out1()
out1.setSpaceSeparator(true)</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.member.setTabSeaparator(bool,checked)</source>
        <translation>The same as setSpaceSeparator, under the name, spelled this way, that older scripts and projects use: blanks count like tabs.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.member.setTabSeaparator(bool,checked):argument0</source>
        <translation>True to set it; false has no effect.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile.member.setTabSeaparator(bool,checked):example</source>
        <translation>genericIntegrationResultsFile out1()
out1.setTabSeaparator(true)</translation>
    </message>
    <message>
        <source>!FGenIntResultsFile:example</source>
        <translation>genericIntegrationResultsFile out1() {
    .setContent("Force  0.52  0.031")
    .setFileName("out.dat")
    .setValues([["CL", 0, 0, "Force", Last, "FDouble", ""], ["CD", 0, 1, "Force", Last, "FDouble", ""]])
}</translation>
    </message>
    <message>
        <source>!FImport</source>
        <translation>An import reads files of one kind into the project.</translation>
    </message>
    <message>
        <source>!FImport.member.read(string,fileName="",bool,flag=false)</source>
        <translation>Imports a file. A file that does not exist or cannot be opened changes nothing, without a message.</translation>
    </message>
    <message>
        <source>!FImport.member.read(string,fileName="",bool,flag=false):argument0</source>
        <translation>The file, relative to the script if it lies there, or else to the current folder. $NAME, ${NAME}, %NAME% and a leading ~ are expanded. Without it a window asks for the file; where there are no windows, nothing is read.</translation>
    </message>
    <message>
        <source>!FImport.member.read(string,fileName="",bool,flag=false):argument1</source>
        <translation>An option of some kinds of import; the others ignore it.</translation>
    </message>
    <message>
        <source>!FImport.member.read(string,fileName="",bool,flag=false):example</source>
        <translation>print(getObjects("FImport").read("wing.lodm"))</translation>
    </message>
    <message>
        <source>!FImport.member.read(string,fileName="",bool,flag=false):returnValue</source>
        <comment>return type: FObjectList</comment>
        <translation>A list, empty for most kinds of import.</translation>
    </message>
    <message>
        <source>!FImport:example</source>
        <translation>print(getObjects("FImport").read("wing.lodm"))</translation>
    </message>
    <message>
        <source>!FImportSoftwareConnector</source>
        <translation>Imports set-ups from an exchange file: definitions with templates, configurations, computations and connectors, as exportSetUp writes them. Where a name is taken, the new object gets another one, and all that the file says of it means the new object. What is missing or damaged in a part of the file is reported with its line; the rest is imported.</translation>
    </message>
    <message>
        <source>!FImportSoftwareConnector.creator.softwareConnectorImport()</source>
        <translation>Makes an import of set-ups. It can be used many times.</translation>
    </message>
    <message>
        <source>!FImportSoftwareConnector.creator.softwareConnectorImport():example</source>
        <translation>softwareConnectorImport setUps()
setUps.read("wing.lodm")</translation>
    </message>
    <message>
        <source>!FImportSoftwareConnector.creator.softwareConnectorImport():returnValue</source>
        <comment>return type: FImportSoftwareConnector</comment>
        <translation>The import.</translation>
    </message>
    <message>
        <source>!FImportSoftwareConnector:example</source>
        <translation>softwareConnectorImport setUps()
setUps.read("wing.lodm")</translation>
    </message>
    <message>
        <source>!FObjectList</source>
        <translation>A list of values or objects, written [a, b, c]; it can hold other lists. A command that lists don't have is executed by each element that has it, and the results come back as a list: one result for a list of one, an empty list for an empty one. Lists don't change; a new one is written instead.</translation>
    </message>
    <message>
        <source>!FObjectList.member.at(int,index)</source>
        <translation>The element at a place, counted from 0. A place outside of the list gives NULL.</translation>
    </message>
    <message>
        <source>!FObjectList.member.at(int,index):argument0</source>
        <translation>The place, from 0 to the number of elements less 1.</translation>
    </message>
    <message>
        <source>!FObjectList.member.at(int,index):example</source>
        <translation>heights = [20, 30, 40]
print(heights.at(0), heights.at(heights.count() - 1))</translation>
    </message>
    <message>
        <source>!FObjectList.member.at(int,index):returnValue</source>
        <comment>return type: FObject</comment>
        <translation>The element, or NULL.</translation>
    </message>
    <message>
        <source>!FObjectList.member.count()</source>
        <translation>The number of elements.</translation>
    </message>
    <message>
        <source>!FObjectList.member.count():example</source>
        <translation>print(["wing", "tail"].count())</translation>
    </message>
    <message>
        <source>!FObjectList.member.count():returnValue</source>
        <comment>return type: int</comment>
        <translation>The number, from 0.</translation>
    </message>
    <message>
        <source>!FObjectList:example</source>
        <translation>heights = [20, 30, 40]
for (height in heights) { print(height) }</translation>
    </message>
    <message>
        <source>!FParameter</source>
        <translation>A named value that expressions can use by its name. It holds an expression rather than a number: when something in the expression changes, the parameter follows, and so does everything that uses it.</translation>
    </message>
    <message>
        <source>!FParameter.attribute.setValue(expression,value)</source>
        <translation>Sets the value, which stays an expression and follows what it names. If the parameter would depend on itself, it keeps its value, with a warning.</translation>
    </message>
    <message>
        <source>!FParameter.attribute.setValue(expression,value):argument0</source>
        <translation>The value or expression; NULL for none.</translation>
    </message>
    <message>
        <source>!FParameter.attribute.setValue(expression,value):example</source>
        <translation>parameter span(12.5)
parameter area(0)
area.setValue(span * 1.2)
print(area.getValue(), getAttribute(area, "setValue"))</translation>
    </message>
    <message>
        <source>!FParameter.attribute.setValue(expression,value):returnValue</source>
        <comment>return type: FParameter</comment>
        <translation>The parameter; NULL if the value was refused.</translation>
    </message>
    <message>
        <source>!FParameter.creator.parameter(expression,value=NULL)</source>
        <translation>Makes a parameter. Its value stays an expression and follows what it names; variables of the script are replaced by their present value. It may use only functions and commands that change nothing.</translation>
    </message>
    <message>
        <source>!FParameter.creator.parameter(expression,value=NULL):argument0</source>
        <translation>The value or expression; NULL for none yet.</translation>
    </message>
    <message>
        <source>!FParameter.creator.parameter(expression,value=NULL):example</source>
        <translation>parameter span(12.5)
parameter halfSpan(span / 2)
print(halfSpan.getValue())</translation>
    </message>
    <message>
        <source>!FParameter.creator.parameter(expression,value=NULL):returnValue</source>
        <comment>return type: FParameter</comment>
        <translation>The parameter.</translation>
    </message>
    <message>
        <source>!FParameter.member.getValue()</source>
        <translation>The present value. In an expression the name of the parameter alone means the same.</translation>
    </message>
    <message>
        <source>!FParameter.member.getValue():example</source>
        <translation>parameter span(12.5)
print(span.getValue(), span + 1)</translation>
    </message>
    <message>
        <source>!FParameter.member.getValue():returnValue</source>
        <comment>return type: FObject</comment>
        <translation>The value; NULL if there is none.</translation>
    </message>
    <message>
        <source>!FParameter:example</source>
        <translation>parameter span(12.5)
parameter area(span * 1.2)
span.setValue(14)
print(area.getValue())</translation>
    </message>
    <message>
        <source>!FResultsGenInt</source>
        <translation>The results of one run of a generic computation: a table for each result template. The commands that name no table read the first one; the others are reached by getTable. What can't be found is NaN rather than an error.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.attribute.setOutputHandles(FCONTAINER,files)</source>
        <translation>Sets the result templates that the files are read with. Each run sets those of its definition; rereadResults does so again. The tables are made again when a number is next requested, also if the list is the same.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.attribute.setOutputHandles(FCONTAINER,files):argument0</source>
        <translation>The result templates; [] for none. Other templates in the list are passed over.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.attribute.setOutputHandles(FCONTAINER,files):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
solver.getResults().setOutputHandles([out1])</translation>
    </message>
    <message>
        <source>!FResultsGenInt.creator.genericIntegrationResults(FDesign,variant=NULL,int,computationId=0)</source>
        <translation>Brings results back when a project is loaded. A script gets results from a run instead, by getResults. Results without a design aren't saved.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.creator.genericIntegrationResults(FDesign,variant=NULL,int,computationId=0):argument0</source>
        <translation>The design that the run was made for; NULL for none.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.creator.genericIntegrationResults(FDesign,variant=NULL,int,computationId=0):argument1</source>
        <translation>The number of the computation; 0 if it is unknown.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.creator.genericIntegrationResults(FDesign,variant=NULL,int,computationId=0):example</source>
        <translation>genericIntegrationResults results()
print(results.getTableNames())</translation>
    </message>
    <message>
        <source>!FResultsGenInt.creator.genericIntegrationResults(FDesign,variant=NULL,int,computationId=0):returnValue</source>
        <comment>return type: FResultsGenInt</comment>
        <translation>The results.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getAverageOfLastRows(int,numberOfRows,int,column=0)</source>
        <translation>The mean of a column over the last rows of the first table: that of the first result template; over all rows if there are fewer. A NaN among them makes it NaN, and so does a number of rows below 1. To average over lines of the output file, use the average of setValues.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getAverageOfLastRows(int,numberOfRows,int,column=0):argument0</source>
        <translation>Over how many rows.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getAverageOfLastRows(int,numberOfRows,int,column=0):argument1</source>
        <translation>The column, from 0.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getAverageOfLastRows(int,numberOfRows,int,column=0):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getAverageOfLastRows(2))</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getAverageOfLastRows(int,numberOfRows,int,column=0):returnValue</source>
        <comment>return type: double</comment>
        <translation>The mean, or NaN.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(double,row,string,column header)</source>
        <translation>The number in a row and the column of a name of the first table: that of the first result template. Tables of result templates have no column names, so it is NaN for them.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(double,row,string,column header):argument0</source>
        <translation>The row, from 0; decimals are dropped.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(double,row,string,column header):argument1</source>
        <translation>The name of the column; case matters.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(double,row,string,column header):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getDataAt(0, "x"))</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(double,row,string,column header):returnValue</source>
        <comment>return type: double</comment>
        <translation>The number, or NaN.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(string,row header,string,column header)</source>
        <translation>The number in the row and the column of these names of the first table: that of the first result template. Tables of result templates have no column names, so it is NaN for them.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(string,row header,string,column header):argument0</source>
        <translation>The name of the value; case matters.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(string,row header,string,column header):argument1</source>
        <translation>The name of the column; case matters.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(string,row header,string,column header):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getDataAt("CL", "x"))</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(string,row header,string,column header):returnValue</source>
        <comment>return type: double</comment>
        <translation>The number, or NaN.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(string,row header,unsigned,column)</source>
        <translation>The value of a name of the first table: that of the first result template. A name that isn't there gives NaN; of several with the name the first counts.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(string,row header,unsigned,column):argument0</source>
        <translation>The name of the value; case matters.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(string,row header,unsigned,column):argument1</source>
        <translation>The column, from 0; a result file has only column 0.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(string,row header,unsigned,column):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getDataAt("CL", 0))</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(string,row header,unsigned,column):returnValue</source>
        <comment>return type: double</comment>
        <translation>The number, or NaN.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(unsigned,row,unsigned,column)</source>
        <translation>The number in a row and a column of the first table: that of the first result template. Outside of the table it is NaN. The rows are in the order of the values in the file.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(unsigned,row,unsigned,column):argument0</source>
        <translation>The row, from 0.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(unsigned,row,unsigned,column):argument1</source>
        <translation>The column, from 0; a result file has only column 0.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(unsigned,row,unsigned,column):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getDataAt(0, 0))</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getDataAt(unsigned,row,unsigned,column):returnValue</source>
        <comment>return type: double</comment>
        <translation>The number, or NaN.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getLastDataOfColumn(int,column=0)</source>
        <translation>The number in the last row and a column of the first table: that of the first result template: of a result file, the value that comes last in it.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getLastDataOfColumn(int,column=0):argument0</source>
        <translation>The column, from 0.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getLastDataOfColumn(int,column=0):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getLastDataOfColumn())</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getLastDataOfColumn(int,column=0):returnValue</source>
        <comment>return type: double</comment>
        <translation>The number, or NaN.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getLastDataOfRow(int,row=0)</source>
        <translation>The last number of a row of the first table: that of the first result template. Outside of the table it is NaN.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getLastDataOfRow(int,row=0):argument0</source>
        <translation>The row, from 0.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getLastDataOfRow(int,row=0):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getLastDataOfRow(1))</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getLastDataOfRow(int,row=0):returnValue</source>
        <comment>return type: double</comment>
        <translation>The number, or NaN.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getResultTemplateName(string,fileName)</source>
        <translation>The path of a result file: that of this name in the folder of the run. The file needn't be there. If no result template of the computation's definition has the name, or the computation is gone, it is empty.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getResultTemplateName(string,fileName):argument0</source>
        <translation>The file name as the template has it; case matters.</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getResultTemplateName(string,fileName):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(readText(solver.getResults().getResultTemplateName("stdout.txt")))</translation>
    </message>
    <message>
        <source>!FResultsGenInt.member.getResultTemplateName(string,fileName):returnValue</source>
        <comment>return type: string</comment>
        <translation>The path, or "".</translation>
    </message>
    <message>
        <source>!FResultsGenInt:example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
results = solver.getResults()
print(results.getDataAt("CL", 0), results.getTable("stdout.txt").getElementAt("CD"))</translation>
    </message>
    <message>
        <source>!FResultsGeneric</source>
        <translation>The results of one run, as tables of numbers. The files are read at the first access to a result, and not again when marks or separators of a template change: rereadResults of the computation does that. Results of a run that failed can be read, with one warning; values that the program didn't write are NaN. While the run is in progress there are no results.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getImportedObject(string,value)</source>
        <translation>The object that was made from the file whose name a value of type "FFileName" found: a table, or a text, as the import type of the value says. Each zone of a file of type "tecplot" is a table of the results, too; its name is that of the value, "|" and the title of the zone, or its number if it has none. Of two values with one name, the last one counts.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getImportedObject(string,value):argument0</source>
        <translation>The name of the value in its result template.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getImportedObject(string,value):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setNumberSeparator(false); .setRegExprSeparator(";"); .setValues([["curve", 0, 0, "", Last, "FFileName", "table", 0, NULL]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("sh"); .setArguments(["-c", "echo 1 2 &gt; c.txt; echo 'c.txt;'"]) }
solver.run()
print(solver.getResults().getImportedObject("curve").getElementAt(0, 1))</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getImportedObject(string,value):returnValue</source>
        <comment>return type: FObject</comment>
        <translation>The object, or NULL.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getImportedObjectNames()</source>
        <translation>The names of the values with an imported object, in alphabetical order.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getImportedObjectNames():example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setNumberSeparator(false); .setRegExprSeparator(";"); .setValues([["curve", 0, 0, "", Last, "FFileName", "table", 0, NULL]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("sh"); .setArguments(["-c", "echo 1 2 &gt; c.txt; echo 'c.txt;'"]) }
solver.run()
print(solver.getResults().getImportedObjectNames())</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getImportedObjectNames():returnValue</source>
        <comment>return type: stringContainer</comment>
        <translation>The names; an empty list if there are none.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getResultFileName(string,entry)</source>
        <translation>The path of a result file of the run, which an entry of the configuration names with resultsFileName. The file needn't exist. As the name of an inputFile, the path links another computation to this one.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getResultFileName(string,entry):argument0</source>
        <translation>The path of the entry, or the name of the file.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getResultFileName(string,entry):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
wing.addEntry("log", resultsFileName("stdout.txt"))
solver.run()
print(readText(solver.getResults().getResultFileName("log")))</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getResultFileName(string,entry):returnValue</source>
        <comment>return type: string</comment>
        <translation>The path; "" if no entry names such a file, or if it is outside the folder.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getTable(string,name)</source>
        <translation>The table of a result file, by the name of the file or, with any case, by the name of its result template. The first of several tables with the name counts. Without such a table the result is NULL.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getTable(string,name):argument0</source>
        <translation>The file name as the template has it, or the name of the template.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getTable(string,name):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getElementAt("CL"))</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getTable(string,name):returnValue</source>
        <comment>return type: FTableData</comment>
        <translation>The table, or NULL.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getTableNames()</source>
        <translation>The names of all tables, in the order of the result templates: the names of their files.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getTableNames():example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
for (name in solver.getResults().getTableNames()) { print(name) }</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getTableNames():returnValue</source>
        <comment>return type: stringContainer</comment>
        <translation>The names; an empty list if nothing can be read.</translation>
    </message>
    <message>
        <source>!FResultsGeneric:example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTableNames())</translation>
    </message>
    <message>
        <source>!FTableData</source>
        <translation>A table of numbers with a name; its rows, and sometimes its columns, have names, too. The table of a result template has one row for each value, with the value's name, and one column. The rows have the order in which the values' anchors appear in the file. A place outside the table reads as NaN.</translation>
    </message>
    <message>
        <source>!FTableData.member.getColumnCount()</source>
        <translation>The number of columns: the length of the longest row.</translation>
    </message>
    <message>
        <source>!FTableData.member.getColumnCount():example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getColumnCount())</translation>
    </message>
    <message>
        <source>!FTableData.member.getColumnCount():returnValue</source>
        <comment>return type: int</comment>
        <translation>The number, from 0.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(double,row,string,column header)</source>
        <translation>The number in a row and the column of a name. Tables of result templates have no names of columns, so that it is NaN there.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(double,row,string,column header):argument0</source>
        <translation>The row, from 0; decimals are dropped.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(double,row,string,column header):argument1</source>
        <translation>The name of the column; case matters.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(double,row,string,column header):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getElementAt(0, "x"))</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(double,row,string,column header):returnValue</source>
        <comment>return type: double</comment>
        <translation>The number, or NaN.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(string,row header,string,column header)</source>
        <translation>The number in the row and the column of these names. Tables of result templates have no names of columns, so that it is NaN there.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(string,row header,string,column header):argument0</source>
        <translation>The name of the row; case matters.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(string,row header,string,column header):argument1</source>
        <translation>The name of the column; case matters.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(string,row header,string,column header):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getElementAt("CL", "x"))</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(string,row header,string,column header):returnValue</source>
        <comment>return type: double</comment>
        <translation>The number, or NaN.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(string,row header,unsigned,column=0)</source>
        <translation>The number in the row of a name: for a result file, the value of that name. If several rows have the name, the first counts. An unknown name gives NaN, with a warning.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(string,row header,unsigned,column=0):argument0</source>
        <translation>The name of the row; case matters.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(string,row header,unsigned,column=0):argument1</source>
        <translation>The column, from 0.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(string,row header,unsigned,column=0):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getElementAt("CL"))</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(string,row header,unsigned,column=0):returnValue</source>
        <comment>return type: double</comment>
        <translation>The number, or NaN.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(unsigned,row,unsigned,column=0)</source>
        <translation>The number in a row and a column. Outside of the table it is NaN, with a warning.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(unsigned,row,unsigned,column=0):argument0</source>
        <translation>The row, from 0.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(unsigned,row,unsigned,column=0):argument1</source>
        <translation>The column, from 0.</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(unsigned,row,unsigned,column=0):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getElementAt(0))</translation>
    </message>
    <message>
        <source>!FTableData.member.getElementAt(unsigned,row,unsigned,column=0):returnValue</source>
        <comment>return type: double</comment>
        <translation>The number, or NaN.</translation>
    </message>
    <message>
        <source>!FTableData.member.getRowCount()</source>
        <translation>The number of rows; of a result file that could be read, the number of its values.</translation>
    </message>
    <message>
        <source>!FTableData.member.getRowCount():example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getRowCount())</translation>
    </message>
    <message>
        <source>!FTableData.member.getRowCount():returnValue</source>
        <comment>return type: int</comment>
        <translation>The number, from 0.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getTableAt(unsigned,number)</source>
        <translation>The table of a number, in the order of the result templates of the definition. It also finds the tables of several templates that read the same file, which have the same name.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getTableAt(unsigned,number):argument0</source>
        <translation>The number, from 0.</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getTableAt(unsigned,number):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTableAt(0).getElementAt("CL"))</translation>
    </message>
    <message>
        <source>!FResultsGeneric.member.getTableAt(unsigned,number):returnValue</source>
        <comment>return type: FTableData</comment>
        <translation>The table, or NULL.</translation>
    </message>
    <message>
        <source>!FString</source>
        <translation>A text. Its characters are counted from 0; the commands don't change it.</translation>
    </message>
    <message>
        <source>!FString:example</source>
        <translation>state = "NOT CONVERGED after 50"
if (state.contains("NOT CONVERGED")) { print("failed:", state) }</translation>
    </message>
    <message>
        <source>!FString.member.contains(string,text)</source>
        <translation>Whether the text contains another one. Case matters.</translation>
    </message>
    <message>
        <source>!FString.member.contains(string,text):argument0</source>
        <translation>The text to look for; every text contains "".</translation>
    </message>
    <message>
        <source>!FString.member.contains(string,text):example</source>
        <translation>print("NOT CONVERGED".contains("CONVERGED"))</translation>
    </message>
    <message>
        <source>!FString.member.contains(string,text):returnValue</source>
        <comment>return type: bool</comment>
        <translation>True if it does.</translation>
    </message>
    <message>
        <source>!FString.member.find(string,text,unsigned,from=0)</source>
        <translation>The place of the first occurrence of another text. Case matters.</translation>
    </message>
    <message>
        <source>!FString.member.find(string,text,unsigned,from=0):argument0</source>
        <translation>The text to look for.</translation>
    </message>
    <message>
        <source>!FString.member.find(string,text,unsigned,from=0):argument1</source>
        <translation>The place to start from, counted from 0.</translation>
    </message>
    <message>
        <source>!FString.member.find(string,text,unsigned,from=0):example</source>
        <translation>print("v4.2, 2024".find("20"))</translation>
    </message>
    <message>
        <source>!FString.member.find(string,text,unsigned,from=0):returnValue</source>
        <comment>return type: int</comment>
        <translation>The place of its first character, from 0; -1 if the text doesn't contain it.</translation>
    </message>
    <message>
        <source>!FString.member.length()</source>
        <translation>The number of characters.</translation>
    </message>
    <message>
        <source>!FString.member.length():example</source>
        <translation>print("CONVERGED".length())</translation>
    </message>
    <message>
        <source>!FString.member.length():returnValue</source>
        <comment>return type: int</comment>
        <translation>The number, from 0. A character beyond the first 65536 of Unicode counts as two.</translation>
    </message>
    <message>
        <source>!FString.member.split(string,separator="")</source>
        <translation>The parts of the text between separators. Two separators in a row have an empty part between them.</translation>
    </message>
    <message>
        <source>!FString.member.split(string,separator=""):argument0</source>
        <translation>The separator; "" for white space of any length, which then gives no empty parts.</translation>
    </message>
    <message>
        <source>!FString.member.split(string,separator=""):example</source>
        <translation>print("4.2;7;9".split(";").at(1))</translation>
    </message>
    <message>
        <source>!FString.member.split(string,separator=""):returnValue</source>
        <comment>return type: stringContainer</comment>
        <translation>The parts, as texts; number() turns one into a number.</translation>
    </message>
    <message>
        <source>!FTableData.member.getColumn(unsigned,column=0)</source>
        <translation>The numbers of a column, from the first row to the last.</translation>
    </message>
    <message>
        <source>!FTableData.member.getColumn(unsigned,column=0):argument0</source>
        <translation>The column, from 0.</translation>
    </message>
    <message>
        <source>!FTableData.member.getColumn(unsigned,column=0):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getColumn())</translation>
    </message>
    <message>
        <source>!FTableData.member.getColumn(unsigned,column=0):returnValue</source>
        <comment>return type: FObjectContainer</comment>
        <translation>A list of numbers; NaN for a row that has no such column.</translation>
    </message>
    <message>
        <source>!FTableData.member.getListing()</source>
        <translation>A listing of the values for people: name, value, place, text and flags, in aligned columns. The place is file:line:column. A flag names something unusual, such as "exponent" for 1.0D+05, of which only 1.0 is read.</translation>
    </message>
    <message>
        <source>!FTableData.member.getListing():example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getListing())</translation>
    </message>
    <message>
        <source>!FTableData.member.getListing():returnValue</source>
        <comment>return type: string</comment>
        <translation>The listing, one line for each value after a line of headers.</translation>
    </message>
    <message>
        <source>!FTableData.member.getOrigin(string,row header)</source>
        <translation>Where a number comes from: file, line, column and text, what was unusual about it, the place of the anchor, and for an average all its rows.</translation>
    </message>
    <message>
        <source>!FTableData.member.getOrigin(string,row header):argument0</source>
        <translation>The name of the row; case matters.</translation>
    </message>
    <message>
        <source>!FTableData.member.getOrigin(string,row header):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
origin = solver.getResults().getTable("stdout.txt").getOrigin("CL")
print(origin)
print(origin.get("line"), origin.get("flags").count())</translation>
    </message>
    <message>
        <source>!FTableData.member.getOrigin(string,row header):returnValue</source>
        <comment>return type: FValueOrigin</comment>
        <translation>An origin: a record of the names that getNames lists. NULL, with a warning, if there is no such row.</translation>
    </message>
    <message>
        <source>!FTableData.member.getText(string,row header)</source>
        <translation>The text that was found for a value. With a separator, it may be a word, a unit or a version, which isn't a number and reads as NaN. For an average, it is the text of its last row.</translation>
    </message>
    <message>
        <source>!FTableData.member.getText(string,row header):argument0</source>
        <translation>The name of the row; case matters.</translation>
    </message>
    <message>
        <source>!FTableData.member.getText(string,row header):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getText("CL"))</translation>
    </message>
    <message>
        <source>!FTableData.member.getText(string,row header):returnValue</source>
        <comment>return type: string</comment>
        <translation>The text; "" if nothing was found.</translation>
    </message>
    <message>
        <source>!FTableData.member.getOrigin(unsigned,row)</source>
        <translation>Where a number comes from: file, line, column and text, what was unusual about it, the place of the anchor, and for an average all its rows.</translation>
    </message>
    <message>
        <source>!FTableData.member.getOrigin(unsigned,row):argument0</source>
        <translation>The row, from 0.</translation>
    </message>
    <message>
        <source>!FTableData.member.getOrigin(unsigned,row):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
origin = solver.getResults().getTable("stdout.txt").getOrigin(0)
print(origin)
print(origin.get("line"), origin.get("flags").count())</translation>
    </message>
    <message>
        <source>!FTableData.member.getOrigin(unsigned,row):returnValue</source>
        <comment>return type: FValueOrigin</comment>
        <translation>An origin: a record of the names that getNames lists. NULL, with a warning, if there is no such row.</translation>
    </message>
    <message>
        <source>!FTableData.member.getText(unsigned,row)</source>
        <translation>The text that was found for a value. With a separator, it may be a word, a unit or a version, which isn't a number and reads as NaN. For an average, it is the text of its last row.</translation>
    </message>
    <message>
        <source>!FTableData.member.getText(unsigned,row):argument0</source>
        <translation>The row, from 0.</translation>
    </message>
    <message>
        <source>!FTableData.member.getText(unsigned,row):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getText(0))</translation>
    </message>
    <message>
        <source>!FTableData.member.getText(unsigned,row):returnValue</source>
        <comment>return type: string</comment>
        <translation>The text; "" if nothing was found.</translation>
    </message>
    <message>
        <source>!FTableData.member.toCsv()</source>
        <translation>The table as comma-separated values, for a spreadsheet: a line of headers, then a line for each row with its name and its numbers.</translation>
    </message>
    <message>
        <source>!FTableData.member.toCsv():example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").toCsv())</translation>
    </message>
    <message>
        <source>!FTableData.member.toCsv():returnValue</source>
        <comment>return type: string</comment>
        <translation>The lines, each with a line feed at its end. A name with a comma or a quote is quoted.</translation>
    </message>
    <message>
        <source>!FValueOrigin</source>
        <translation>Where a number of a result table comes from. Printed, it is one line: the place as file:line:column, the text, and the flags in brackets. It describes the reading that it was taken from; later readings don't change it.</translation>
    </message>
    <message>
        <source>!FValueOrigin:example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
origin = solver.getResults().getTable("stdout.txt").getOrigin("CL")
print(origin)</translation>
    </message>
    <message>
        <source>!FValueOrigin.member.get(string,name)</source>
        <translation>A part of the origin:

name: the name of the row
value: the number
file, line, column: the place, the last two counted from 1; -1 if nothing was found
text: the text found
flags: a list of texts, empty for a number that isn't unusual: anchor missing, line beyond end, column missing, not a number, fewer rows, no rows, invalid separator, slow separator, exponent, asterisks, NaN or Inf, comma, thousands separator, letter before, point before exponent, blank before exponent, blank after sign, unit, cut, shifted, zero bytes, CR line ends
reason: the same as a sentence, for the most important flag
anchor, anchorLine, anchorColumn: the anchor and its place; -1 if it wasn't found
number: the number of the value in its template, from 0
rows: for an average, a list of origins, one for each row with a number, at most 10000; otherwise empty</translation>
    </message>
    <message>
        <source>!FValueOrigin.member.get(string,name):argument0</source>
        <translation>The name of the part; case matters.</translation>
    </message>
    <message>
        <source>!FValueOrigin.member.get(string,name):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
origin = solver.getResults().getTable("stdout.txt").getOrigin("CL")
print(origin.get("line"), origin.get("column"), origin.get("text"))</translation>
    </message>
    <message>
        <source>!FValueOrigin.member.get(string,name):returnValue</source>
        <comment>return type: FObject</comment>
        <translation>The text, number or list; NULL, with a warning, for another name.</translation>
    </message>
    <message>
        <source>!FValueOrigin.member.getNames()</source>
        <translation>The names of all parts of an origin.</translation>
    </message>
    <message>
        <source>!FValueOrigin.member.getNames():example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
origin = solver.getResults().getTable("stdout.txt").getOrigin("CL")
print(origin.getNames())</translation>
    </message>
    <message>
        <source>!FValueOrigin.member.getNames():returnValue</source>
        <comment>return type: stringContainer</comment>
        <translation>The names.</translation>
    </message>
    <message>
        <source>!Global.preview(FGenIntResultsFile,template)</source>
        <translation>Tries the marks of a result template on its sample content, without a run. Nothing is stored.</translation>
    </message>
    <message>
        <source>!Global.preview(FGenIntResultsFile,template):argument0</source>
        <translation>The result template; its sample is set with setContent.</translation>
    </message>
    <message>
        <source>!Global.preview(FGenIntResultsFile,template):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("out.dat"); .setContent("Force 0.52 1.0D-02"); .setValues([["CL", 0, 0, "Force", Last, "FDouble", ""], ["CD", 0, 1, "Force", Last, "FDouble", ""]]) }
print(preview(out1))</translation>
    </message>
    <message>
        <source>!Global.preview(FGenIntResultsFile,template):returnValue</source>
        <comment>return type: string</comment>
        <translation>A listing as of getListing: name, value, place, text and flags of each value.</translation>
    </message>
    <message>
        <source>!FTableData.member.getRowName(int,row)</source>
        <translation>The name of a row; empty for a row without a name or outside of the table.</translation>
    </message>
    <message>
        <source>!FTableData.member.getRowName(int,row):argument0</source>
        <translation>The row, from 0.</translation>
    </message>
    <message>
        <source>!FTableData.member.getRowName(int,row):example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getRowName(0))</translation>
    </message>
    <message>
        <source>!FTableData.member.getRowName(int,row):returnValue</source>
        <comment>return type: string</comment>
        <translation>The name, or "".</translation>
    </message>
    <message>
        <source>!FTableData.member.getRowNames()</source>
        <translation>The names of all rows, in order.</translation>
    </message>
    <message>
        <source>!FTableData.member.getRowNames():example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
print(solver.getResults().getTable("stdout.txt").getRowNames())</translation>
    </message>
    <message>
        <source>!FTableData.member.getRowNames():returnValue</source>
        <comment>return type: stringContainer</comment>
        <translation>The names.</translation>
    </message>
    <message>
        <source>!FTableData:example</source>
        <translation>genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["CL", 0, 0, "", Last, "FDouble", ""], ["CD", 0, 1, "", Last, "FDouble", ""]]) }
genericIntegrationDefinition wing() { .setFiles([out1]) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
genericIntegrationComputation solver() { .setConfiguration(cruise); .setExecutable("echo"); .setArguments(["0.52", "0.031"]) }
solver.run()
table = solver.getResults().getTable("stdout.txt")
for (name in table.getRowNames()) { print(name, "=", table.getElementAt(name)) }</translation>
    </message>
    <message>
        <source>!Global.abs(double,x)</source>
        <translation>The number without its sign.</translation>
    </message>
    <message>
        <source>!Global.abs(double,x):argument0</source>
        <translation>Any number.</translation>
    </message>
    <message>
        <source>!Global.abs(double,x):example</source>
        <translation>change = 0.98 - 1
if (abs(change) &lt; 0.05) { print("converged") }</translation>
    </message>
    <message>
        <source>!Global.abs(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>A number of 0 or more.</translation>
    </message>
    <message>
        <source>!Global.acos(double,x)</source>
        <translation>The angle whose cosine is the number. Outside of -1 to 1 it is NaN.</translation>
    </message>
    <message>
        <source>!Global.acos(double,x):argument0</source>
        <translation>A number from -1 to 1.</translation>
    </message>
    <message>
        <source>!Global.acos(double,x):example</source>
        <translation>print(acos(0.5) * 180 / pi(), "degrees")</translation>
    </message>
    <message>
        <source>!Global.acos(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>The angle in radians, from 0 to pi.</translation>
    </message>
    <message>
        <source>!Global.asin(double,x)</source>
        <translation>The angle whose sine is the number. Outside of -1 to 1 it is NaN.</translation>
    </message>
    <message>
        <source>!Global.asin(double,x):argument0</source>
        <translation>A number from -1 to 1.</translation>
    </message>
    <message>
        <source>!Global.asin(double,x):example</source>
        <translation>print(asin(0.5) * 180 / pi(), "degrees")</translation>
    </message>
    <message>
        <source>!Global.asin(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>The angle in radians, from -pi/2 to pi/2.</translation>
    </message>
    <message>
        <source>!Global.atan(double,x)</source>
        <translation>The angle whose tangent is the number. Where a direction in all four quadrants is meant, atan2 is the better choice.</translation>
    </message>
    <message>
        <source>!Global.atan(double,x):argument0</source>
        <translation>Any number.</translation>
    </message>
    <message>
        <source>!Global.atan(double,x):example</source>
        <translation>print(atan(0.1) * 180 / pi(), "degrees")</translation>
    </message>
    <message>
        <source>!Global.atan(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>The angle in radians, from -pi/2 to pi/2.</translation>
    </message>
    <message>
        <source>!Global.atan2(double,y,double,x)</source>
        <translation>The angle from the x axis to the point (x, y), counted anticlockwise. The signs of both numbers decide the quadrant; the order is y first. The angle of (0, 0) is 0.</translation>
    </message>
    <message>
        <source>!Global.atan2(double,y,double,x):argument0</source>
        <translation>The y coordinate.</translation>
    </message>
    <message>
        <source>!Global.atan2(double,y,double,x):argument1</source>
        <translation>The x coordinate.</translation>
    </message>
    <message>
        <source>!Global.atan2(double,y,double,x):example</source>
        <translation>lift = 0.5
drag = -0.5
print(atan2(lift, drag) * 180 / pi(), "degrees")</translation>
    </message>
    <message>
        <source>!Global.atan2(double,y,double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>The angle in radians, from -pi to pi.</translation>
    </message>
    <message>
        <source>!Global.ceil(double,x)</source>
        <translation>The least whole number that isn't below the number; of -1.5 it is -1. The result counts as an integer, so that it can be given where one is expected; beyond 2^53 the number stays as it is.</translation>
    </message>
    <message>
        <source>!Global.ceil(double,x):argument0</source>
        <translation>Any number.</translation>
    </message>
    <message>
        <source>!Global.ceil(double,x):example</source>
        <translation>length = 12.7
print(ceil(length / 2.5), "panels are needed")</translation>
    </message>
    <message>
        <source>!Global.ceil(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>The whole number.</translation>
    </message>
    <message>
        <source>!Global.cos(double,x)</source>
        <translation>The cosine of an angle in radians.</translation>
    </message>
    <message>
        <source>!Global.cos(double,x):argument0</source>
        <translation>The angle in radians.</translation>
    </message>
    <message>
        <source>!Global.cos(double,x):example</source>
        <translation>degrees = 60
print(cos(degrees * pi() / 180))</translation>
    </message>
    <message>
        <source>!Global.cos(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>A number from -1 to 1.</translation>
    </message>
    <message>
        <source>!Global.destroy(FManaged,object)</source>
        <translation>Removes an object. What refers to it then refers to nothing: such a parameter or entry has no value, and a list of template files drops it. The name is free again. undo brings the object back.</translation>
    </message>
    <message>
        <source>!Global.destroy(FManaged,object):argument0</source>
        <translation>The object; a value, such as a number, can't be destroyed.</translation>
    </message>
    <message>
        <source>!Global.destroy(FManaged,object):example</source>
        <translation>parameter span(12.5)
destroy(span)
print(exists("span"))</translation>
    </message>
    <message>
        <source>!Global.destroy(FManaged,object):returnValue</source>
        <comment>return type: bool</comment>
        <translation>True if it was removed.</translation>
    </message>
    <message>
        <source>!Global.exists(string,name)</source>
        <translation>Whether there is an object of that name. Case matters. Variables of the script and destroyed objects don't count.</translation>
    </message>
    <message>
        <source>!Global.exists(string,name):argument0</source>
        <translation>The name of an object.</translation>
    </message>
    <message>
        <source>!Global.exists(string,name):example</source>
        <translation>if (!exists("span")) { parameter span(12.5) }
print(exists("span"))</translation>
    </message>
    <message>
        <source>!Global.exists(string,name):returnValue</source>
        <comment>return type: bool</comment>
        <translation>True if there is one.</translation>
    </message>
    <message>
        <source>!Global.exit(int,code=0)</source>
        <translation>Ends the script after this command, also from within a loop or an included file; "merix script" then ends with the given code. By convention 0 means success. Without it, a script ends with 0, also when a run in it has failed, and with 1 after a script error.</translation>
    </message>
    <message>
        <source>!Global.exit(int,code=0):argument0</source>
        <translation>The exit code, 0 to 255.</translation>
    </message>
    <message>
        <source>!Global.exit(int,code=0):example</source>
        <translation>converged = false
if (!converged) { exit(1) }</translation>
    </message>
    <message>
        <source>!Global.exp(double,x)</source>
        <translation>The exponential function, e to the power of the number. Above about 709.78 the result is Inf.</translation>
    </message>
    <message>
        <source>!Global.exp(double,x):argument0</source>
        <translation>The exponent.</translation>
    </message>
    <message>
        <source>!Global.exp(double,x):example</source>
        <translation>print(exp(1), exp(-0.5 * 1.2^2))</translation>
    </message>
    <message>
        <source>!Global.exp(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>A number above 0, or 0 where it gets too small.</translation>
    </message>
    <message>
        <source>!Global.fileName(string,path)</source>
        <translation>A text that is marked as the name of a file. As the value of an entry it is written into the input files unchanged; nothing is copied, and the file needn't exist. To bring a file into the folder of a run, use inputFile.</translation>
    </message>
    <message>
        <source>!Global.fileName(string,path):argument0</source>
        <translation>The name; a path stays as it is given.</translation>
    </message>
    <message>
        <source>!Global.fileName(string,path):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("airfoil", fileName("naca2412.dat")) }</translation>
    </message>
    <message>
        <source>!Global.fileName(string,path):returnValue</source>
        <comment>return type: FFileName</comment>
        <translation>The file name.</translation>
    </message>
    <message>
        <source>!Global.floor(double,x)</source>
        <translation>The greatest whole number that isn't above the number; of -1.5 it is -2. The result counts as an integer, so that it can be given where one is expected; beyond 2^53 the number stays as it is.</translation>
    </message>
    <message>
        <source>!Global.floor(double,x):argument0</source>
        <translation>Any number.</translation>
    </message>
    <message>
        <source>!Global.floor(double,x):example</source>
        <translation>length = 12.7
print(floor(length / 2.5), "panels fit")</translation>
    </message>
    <message>
        <source>!Global.floor(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>The whole number.</translation>
    </message>
    <message>
        <source>!Global.format(FObject,value,string,pattern)</source>
        <translation>A value as text in a given format, for input files with columns of fixed width and for tables. The format is that of printf with exactly one conversion: d i e E f F g G x X o for a number, s for a text; with the flags - + blank # 0, width and precision up to 1000, and %% for a percent sign. The decimal sign is always a point. d i x X o need a whole number. A text that is longer than the width isn't cut. If the format and the value don't fit, the result is NULL, with a warning that tells why.</translation>
    </message>
    <message>
        <source>!Global.format(FObject,value,string,pattern):argument0</source>
        <translation>A number or a text.</translation>
    </message>
    <message>
        <source>!Global.format(FObject,value,string,pattern):argument1</source>
        <translation>The format, such as "%10.4f".</translation>
    </message>
    <message>
        <source>!Global.format(FObject,value,string,pattern):example</source>
        <translation>print(format(2.5, "%10.4f") + format(-1234567.0, "%14.6E"))
print(format(7, "%03d") + ".dat", format("wing", "%-8s|"))</translation>
    </message>
    <message>
        <source>!Global.format(FObject,value,string,pattern):returnValue</source>
        <comment>return type: string</comment>
        <translation>The formatted text.</translation>
    </message>
    <message>
        <source>!Global.geometryExport(string,fileName,int,kind=0,FObject,source=NULL)</source>
        <translation>Geometry of the project that is written into the folder of a run before the program starts, as the value of an entry. The suffix of the file's name decides on the form: csv for points and curves, with a line "x,y,z" for each point, and stl for triangles. The entities of groups and features are written one after the other. The program isn't started if the name has another suffix, if an object of another kind is among them, or if the file can't be written or would be outside the folder.</translation>
    </message>
    <message>
        <source>!Global.geometryExport(string,fileName,int,kind=0,FObject,source=NULL):argument0</source>
        <translation>The name of the written file, relative to the folder of the run.</translation>
    </message>
    <message>
        <source>!Global.geometryExport(string,fileName,int,kind=0,FObject,source=NULL):argument1</source>
        <translation>0 for a list of objects, 1 for what a feature definition makes, 2 for what an import has brought.</translation>
    </message>
    <message>
        <source>!Global.geometryExport(string,fileName,int,kind=0,FObject,source=NULL):argument2</source>
        <translation>The list of objects for kind 0, else the one object; NULL for none yet.</translation>
    </message>
    <message>
        <source>!Global.geometryExport(string,fileName,int,kind=0,FObject,source=NULL):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
point tip(12.5, 0, 0.4)
wing.addEntry("shape", geometryExport("shape.csv", 0, [tip]))
print(cruise.getEntryValue("shape"))</translation>
    </message>
    <message>
        <source>!Global.geometryExport(string,fileName,int,kind=0,FObject,source=NULL):returnValue</source>
        <comment>return type: FGeometryExport</comment>
        <translation>The export, as a value.</translation>
    </message>
    <message>
        <source>!Global.getAttribute(FObject,object,string,attribute)</source>
        <translation>The present value of an attribute, the one that its command has set. A command that isn't an attribute of the object gives NULL, with a warning that suggests the nearest name.</translation>
    </message>
    <message>
        <source>!Global.getAttribute(FObject,object,string,attribute):argument0</source>
        <translation>An object, or a list of objects: then the value that all of them share, and NULL if they differ.</translation>
    </message>
    <message>
        <source>!Global.getAttribute(FObject,object,string,attribute):argument1</source>
        <translation>The name of the attribute's command, such as "setFileName".</translation>
    </message>
    <message>
        <source>!Global.getAttribute(FObject,object,string,attribute):example</source>
        <translation>genericIntegrationCommandFile in1() { .setFileName("wing.inp") }
print(getAttribute(in1, "setFileName"))</translation>
    </message>
    <message>
        <source>!Global.getAttribute(FObject,object,string,attribute):returnValue</source>
        <comment>return type: FObject</comment>
        <translation>The value.</translation>
    </message>
    <message>
        <source>!Global.getObjects(string,class)</source>
        <translation>All objects of a class and of the classes derived from it, in the order of their creation. Commands can be applied to the whole list: each object carries them out. An unknown class gives an empty list, with a warning.</translation>
    </message>
    <message>
        <source>!Global.getObjects(string,class):argument0</source>
        <translation>The name of a class as given in this reference, such as "FGenIntCommandFile".</translation>
    </message>
    <message>
        <source>!Global.getObjects(string,class):example</source>
        <translation>genericIntegrationCommandFile in1()
genericIntegrationCommandFile in2()
getObjects("FGenIntCommandFile").setForceWindowsLineEndings(true)</translation>
    </message>
    <message>
        <source>!Global.getObjects(string,class):returnValue</source>
        <comment>return type: FObjectContainer</comment>
        <translation>The objects, as a list.</translation>
    </message>
    <message>
        <source>!Global.importGenIntDefinition(string,fileName="")</source>
        <translation>Makes a definition of an exchange file that save has written: its entries, and its templates. Objects of names that are taken get others. The file is data: nothing in it is run. Errors are reported with their place; an error in the first half of the file prevents all of it from being read, any other only the part that contains it.</translation>
    </message>
    <message>
        <source>!Global.importGenIntDefinition(string,fileName=""):argument0</source>
        <translation>The file, relative to the script if it lies there, or else to the current folder. $NAME, ${NAME}, %NAME% and a leading ~ are expanded. Without it a window asks for the file; where there are no windows, nothing is read.</translation>
    </message>
    <message>
        <source>!Global.importGenIntDefinition(string,fileName=""):example</source>
        <translation>genericIntegrationCommandFile in1() { .setContent("span = &lt;entry&gt;span&lt;/entry&gt;"); .setFileName("wing.inp") }
genericIntegrationDefinition wing() { .addEntry("span", 12.5); .setFiles([in1]) }
wing.save("wing.lodm")
copy = importGenIntDefinition("wing.lodm")
print(copy.getEntryNames())</translation>
    </message>
    <message>
        <source>!Global.importGenIntDefinition(string,fileName=""):returnValue</source>
        <comment>return type: FDefinitionGenInt</comment>
        <translation>The definition; NULL if the file can't be read.</translation>
    </message>
    <message>
        <source>!Global.include(string,file)</source>
        <translation>Executes another script at this place, as if its lines were here: it sees and sets the same variables. The name is relative to the folder of the script that includes it if the file lies there, otherwise to the current folder. A file that can't be read or an error in it ends the whole script with exit code 1; more than 50 files within one another are refused.</translation>
    </message>
    <message>
        <source>!Global.include(string,file):argument0</source>
        <translation>The script file.</translation>
    </message>
    <message>
        <source>!Global.include(string,file):example</source>
        <translation>// in the folder examples/cantilever
include("cantilever.merix")
print(table.getElementAt("deflection"))</translation>
    </message>
    <message>
        <source>!Global.include(string,file):returnValue</source>
        <comment>return type: bool</comment>
        <translation>True; what fails ends the script.</translation>
    </message>
    <message>
        <source>!Global.inputFile(expression,fileName,expression,saveDirectory=NULL)</source>
        <translation>A file that is copied into the folder of a run before the program starts, as the value of an entry. The tag of the entry becomes the file's name there. The name can be an expression on the results of another computation, which links the two. A file that can't be read, or that would lie outside of the folder, fails the run.</translation>
    </message>
    <message>
        <source>!Global.inputFile(expression,fileName,expression,saveDirectory=NULL):argument0</source>
        <translation>The file. A relative name starts at the project file's folder, or at the current folder if the project isn't saved.</translation>
    </message>
    <message>
        <source>!Global.inputFile(expression,fileName,expression,saveDirectory=NULL):argument1</source>
        <translation>A folder in the folder of the run; NULL for that folder itself.</translation>
    </message>
    <message>
        <source>!Global.inputFile(expression,fileName,expression,saveDirectory=NULL):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
wing.addEntry("mesh", inputFile("samples/wing.msh", "meshes"))
print(cruise.getEntryValue("mesh"))</translation>
    </message>
    <message>
        <source>!Global.inputFile(expression,fileName,expression,saveDirectory=NULL):returnValue</source>
        <comment>return type: FInputFile</comment>
        <translation>The file, as a value.</translation>
    </message>
    <message>
        <source>!Global.isNaN(double,x)</source>
        <translation>Whether the number is NaN, "not a number": what a result is when the program didn't write it, or when its place in the output file wasn't found. A comparison with a NaN is never true, so this is the way to notice one.</translation>
    </message>
    <message>
        <source>!Global.isNaN(double,x):argument0</source>
        <translation>A number, such as a result.</translation>
    </message>
    <message>
        <source>!Global.isNaN(double,x):example</source>
        <translation>drag = number("not converged")
if (isNaN(drag)) { print("no drag in the output") }</translation>
    </message>
    <message>
        <source>!Global.isNaN(double,x):returnValue</source>
        <comment>return type: bool</comment>
        <translation>True for NaN, false for every other number, also for Inf.</translation>
    </message>
    <message>
        <source>!Global.log(double,x)</source>
        <translation>The natural logarithm. Of 0 it is -Inf, of a number below 0 NaN.</translation>
    </message>
    <message>
        <source>!Global.log(double,x):argument0</source>
        <translation>A number above 0.</translation>
    </message>
    <message>
        <source>!Global.log(double,x):example</source>
        <translation>print(log(10), log(8) / log(2))</translation>
    </message>
    <message>
        <source>!Global.log(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>The logarithm to the base e.</translation>
    </message>
    <message>
        <source>!Global.log10(double,x)</source>
        <translation>The logarithm to the base 10. Of 0 it is -Inf, of a number below 0 NaN.</translation>
    </message>
    <message>
        <source>!Global.log10(double,x):argument0</source>
        <translation>A number above 0.</translation>
    </message>
    <message>
        <source>!Global.log10(double,x):example</source>
        <translation>ratio = 0.5
print(20 * log10(ratio), "dB")</translation>
    </message>
    <message>
        <source>!Global.log10(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>The logarithm to the base 10.</translation>
    </message>
    <message>
        <source>!Global.max(FObjects,numbers)</source>
        <translation>The greatest of the numbers. A whole number stays whole. A NaN counts only as the first argument, where it is the result; elsewhere it is passed over. Without arguments, or with one that isn't a number (a list isn't one), the result is NULL.</translation>
    </message>
    <message>
        <source>!Global.max(FObjects,numbers):argument0</source>
        <translation>Any count of numbers, each as an argument of its own.</translation>
    </message>
    <message>
        <source>!Global.max(FObjects,numbers):example</source>
        <translation>force = -250
print(max(abs(force), 100))</translation>
    </message>
    <message>
        <source>!Global.max(FObjects,numbers):returnValue</source>
        <comment>return type: double</comment>
        <translation>The greatest number.</translation>
    </message>
    <message>
        <source>!Global.min(FObjects,numbers)</source>
        <translation>The least of the numbers. A whole number stays whole. A NaN counts only as the first argument, where it is the result; elsewhere it is passed over. Without arguments, or with one that isn't a number (a list isn't one), the result is NULL.</translation>
    </message>
    <message>
        <source>!Global.min(FObjects,numbers):argument0</source>
        <translation>Any count of numbers, each as an argument of its own.</translation>
    </message>
    <message>
        <source>!Global.min(FObjects,numbers):example</source>
        <translation>height = 40.0
width = 20.0
print(min(height, width, 25))</translation>
    </message>
    <message>
        <source>!Global.min(FObjects,numbers):returnValue</source>
        <comment>return type: double</comment>
        <translation>The least number.</translation>
    </message>
    <message>
        <source>!Global.number(string,text)</source>
        <translation>The number that a text is, with a decimal point and, if wanted, an exponent as in 1.5e3; blanks around it don't matter. A text that isn't a number as a whole gives NaN; so does a decimal comma.</translation>
    </message>
    <message>
        <source>!Global.number(string,text):argument0</source>
        <translation>The text.</translation>
    </message>
    <message>
        <source>!Global.number(string,text):example</source>
        <translation>print(number("1.5e3") / 2, isNaN(number("1,5")))</translation>
    </message>
    <message>
        <source>!Global.number(string,text):returnValue</source>
        <comment>return type: double</comment>
        <translation>The number, or NaN.</translation>
    </message>
    <message>
        <source>!Global.pi()</source>
        <translation>The number pi, 3.141592653589793.</translation>
    </message>
    <message>
        <source>!Global.pi():example</source>
        <translation>radius = 0.25
print(pi() * radius^2)</translation>
    </message>
    <message>
        <source>!Global.pi():returnValue</source>
        <comment>return type: double</comment>
        <translation>Pi, as exact as a double can be.</translation>
    </message>
    <message>
        <source>!Global.pow(double,base,double,exponent)</source>
        <translation>The base raised to the exponent; the same as base ^ exponent. A base below 0 with an exponent that isn't whole gives NaN.</translation>
    </message>
    <message>
        <source>!Global.pow(double,base,double,exponent):argument0</source>
        <translation>The base.</translation>
    </message>
    <message>
        <source>!Global.pow(double,base,double,exponent):argument1</source>
        <translation>The exponent; it needn't be whole.</translation>
    </message>
    <message>
        <source>!Global.pow(double,base,double,exponent):example</source>
        <translation>speed = 340
print(0.5 * 1.225 * pow(speed, 2))</translation>
    </message>
    <message>
        <source>!Global.pow(double,base,double,exponent):returnValue</source>
        <comment>return type: double</comment>
        <translation>The power.</translation>
    </message>
    <message>
        <source>!Global.print(FObjects,values)</source>
        <translation>Writes the plain text of each argument to the standard output, with a blank between two of them and a line end after the last. Texts are written without quotes, numbers in the shortest form that reads back to the same number, and a value that isn't there as NULL. Without arguments it writes an empty line. Messages go to the standard error instead, so that the output can be piped on.</translation>
    </message>
    <message>
        <source>!Global.print(FObjects,values):argument0</source>
        <translation>Any count of values.</translation>
    </message>
    <message>
        <source>!Global.print(FObjects,values):example</source>
        <translation>span = 12.5
print("span:", span, "m, area:", span * 1.2, "m2")</translation>
    </message>
    <message>
        <source>!Global.readText(string,file)</source>
        <translation>The whole text of a file, with its line ends as they are. It is read as UTF-8, or as a byte order mark says. The name is relative to the folder of the script if the file lies there, otherwise to the current folder. If the file can't be read, the result is NULL, with a warning. Used to fill a template from a sample file.</translation>
    </message>
    <message>
        <source>!Global.readText(string,file):argument0</source>
        <translation>The file.</translation>
    </message>
    <message>
        <source>!Global.readText(string,file):example</source>
        <translation>// in the folder examples/bandpass
text = readText("filter.cir")
if (text != NULL) { print(text) }</translation>
    </message>
    <message>
        <source>!Global.readText(string,file):returnValue</source>
        <comment>return type: string</comment>
        <translation>The text, or NULL.</translation>
    </message>
    <message>
        <source>!Global.redo()</source>
        <translation>Does again what undo has taken back. A new change after an undo forgets what could have been done again.</translation>
    </message>
    <message>
        <source>!Global.redo():example</source>
        <translation>parameter span(12.5)
span.setValue(14)
undo()
redo()
print(span.getValue())</translation>
    </message>
    <message>
        <source>!Global.redo():returnValue</source>
        <comment>return type: bool</comment>
        <translation>False if nothing was taken back.</translation>
    </message>
    <message>
        <source>!Global.resultsFileName(expression,fileName,unsigned,type=0)</source>
        <translation>A file that the program leaves in the folder of a run, as the value of an entry. The tag of the entry becomes the name. After the run, getResultFileName gives the path of the file.</translation>
    </message>
    <message>
        <source>!Global.resultsFileName(expression,fileName,unsigned,type=0):argument0</source>
        <translation>The name, relative to the folder of the run.</translation>
    </message>
    <message>
        <source>!Global.resultsFileName(expression,fileName,unsigned,type=0):argument1</source>
        <translation>3 for pure text, 0 for any kind.</translation>
    </message>
    <message>
        <source>!Global.resultsFileName(expression,fileName,unsigned,type=0):example</source>
        <translation>genericIntegrationDefinition wing() { .addEntry("Geometry|span", 12.5) }
genericIntegrationConfiguration cruise() { .setDefinition(wing) }
wing.addEntry("pressures", resultsFileName("cp.dat", 3))
print(cruise.getEntryValue("pressures"))</translation>
    </message>
    <message>
        <source>!Global.resultsFileName(expression,fileName,unsigned,type=0):returnValue</source>
        <comment>return type: FResultsFileName</comment>
        <translation>The file, as a value.</translation>
    </message>
    <message>
        <source>!Global.round(double,x)</source>
        <translation>The nearest whole number; halves go away from 0, so that 2.5 becomes 3 and -2.5 becomes -3. The result counts as an integer, so that it can be given where one is expected; beyond 2^53 the number stays as it is. To round to decimals, use format.</translation>
    </message>
    <message>
        <source>!Global.round(double,x):argument0</source>
        <translation>Any number.</translation>
    </message>
    <message>
        <source>!Global.round(double,x):example</source>
        <translation>length = 12.7
print(round(length), round(length * 10) / 10.0)</translation>
    </message>
    <message>
        <source>!Global.round(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>The whole number.</translation>
    </message>
    <message>
        <source>!Global.sin(double,x)</source>
        <translation>The sine of an angle in radians.</translation>
    </message>
    <message>
        <source>!Global.sin(double,x):argument0</source>
        <translation>The angle in radians.</translation>
    </message>
    <message>
        <source>!Global.sin(double,x):example</source>
        <translation>degrees = 30
print(sin(degrees * pi() / 180))</translation>
    </message>
    <message>
        <source>!Global.sin(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>A number from -1 to 1.</translation>
    </message>
    <message>
        <source>!Global.sqrt(double,x)</source>
        <translation>The square root. Of a number below 0 it is NaN.</translation>
    </message>
    <message>
        <source>!Global.sqrt(double,x):argument0</source>
        <translation>A number, 0 or more.</translation>
    </message>
    <message>
        <source>!Global.sqrt(double,x):example</source>
        <translation>span = 12.5
print(sqrt(span^2 + 4))</translation>
    </message>
    <message>
        <source>!Global.sqrt(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>The root, 0 or more.</translation>
    </message>
    <message>
        <source>!Global.tan(double,x)</source>
        <translation>The tangent of an angle in radians.</translation>
    </message>
    <message>
        <source>!Global.tan(double,x):argument0</source>
        <translation>The angle in radians.</translation>
    </message>
    <message>
        <source>!Global.tan(double,x):example</source>
        <translation>sweep = 25
print(tan(sweep * pi() / 180))</translation>
    </message>
    <message>
        <source>!Global.tan(double,x):returnValue</source>
        <comment>return type: double</comment>
        <translation>The tangent; very large near odd multiples of pi/2.</translation>
    </message>
    <message>
        <source>!Global.undo()</source>
        <translation>Takes back the last step. In a script each statement that changed something is one step; in a window each action of the user. What was destroyed comes back as the very same object. Runs, their files and their results aren't taken back.</translation>
    </message>
    <message>
        <source>!Global.undo():example</source>
        <translation>parameter span(12.5)
span.setValue(14)
undo()
print(span.getValue())</translation>
    </message>
    <message>
        <source>!Global.undo():returnValue</source>
        <comment>return type: bool</comment>
        <translation>False if there is nothing to take back.</translation>
    </message>
    <message>
        <source>!FManaged.member.addDocu(string,text,string,area)</source>
        <translation>Adds a text to the documentation that a user keeps with the object. It is saved with the project; texts of one area are joined.</translation>
    </message>
    <message>
        <source>!FManaged.member.addDocu(string,text,string,area):argument0</source>
        <translation>The text.</translation>
    </message>
    <message>
        <source>!FManaged.member.addDocu(string,text,string,area):argument1</source>
        <translation>What the text is: DocuName, DocuDescription, DocuExample, DocuResult or DocuHelp.</translation>
    </message>
    <message>
        <source>!FManaged.member.addDocu(string,text,string,area):example</source>
        <translation>parameter span(12.5) {
    .addDocu("Span of the wing in metres", DocuDescription)
}</translation>
    </message>
    <message>
        <source>!FManaged.member.addDocu(string,text,string,area):returnValue</source>
        <comment>return type: bool</comment>
        <translation>False, with a message, for an area that doesn't exist.</translation>
    </message>
    <message>
        <source>!FManaged.member.setDbId(int,id)</source>
        <translation>Gives the object the number that it was saved with. It is written to projects and acts only while one is read.</translation>
    </message>
    <message>
        <source>!FManaged.member.setDbId(int,id):argument0</source>
        <translation>The number, above 0.</translation>
    </message>
    <message>
        <source>!FManaged.member.setDbId(int,id):example</source>
        <translation>// in a project
parameter span() {
    .setDbId(7);
    .setValue(12.5);
}</translation>
    </message>
    <message>
        <source>!FManaged.member.setDbId(int,id):returnValue</source>
        <comment>return type: bool</comment>
        <translation>True if the object has the number now.</translation>
    </message>
    <message>
        <source>!FParameter.member.setUpdateOnDemand(bool,onDemand)</source>
        <translation>Whether the parameter is computed only when it is queried, rather than immediately after each change of what it depends on. Useful for values that are read from files.</translation>
    </message>
    <message>
        <source>!FParameter.member.setUpdateOnDemand(bool,onDemand):argument0</source>
        <translation>True: when it is queried. False: immediately.</translation>
    </message>
    <message>
        <source>!FParameter.member.setUpdateOnDemand(bool,onDemand):example</source>
        <translation>parameter drag(comp.getResults().getTable("out.dat").getElementAt("CD"))
drag.setUpdateOnDemand(true)</translation>
    </message>
    <message>
        <source>!Global.newProject()</source>
        <translation>Begins an empty project, which has no file yet. The present one goes with all its objects and its history; save it before. Objects of the user's own configuration stay.</translation>
    </message>
    <message>
        <source>!Global.newProject():example</source>
        <translation>saveProject("wing.mrx")
newProject()</translation>
    </message>
    <message>
        <source>!Global.newProject():returnValue</source>
        <comment>return type: bool</comment>
        <translation>False, with a message, in the middle of a step that can be undone.</translation>
    </message>
    <message>
        <source>!Global.openProject(string,file,bool,recover=false)</source>
        <translation>Opens a project in place of the present one. A project is data: opening one runs nothing and reads no other file. A damaged line, an unknown command or a value that doesn't fit is reported with its place, and the rest is opened; the first save then keeps the file as it was as NAME.mrx.damaged. A file that can't be read, or that a newer version of the program has written, is refused, and the present project stays. If another process has the project open, or unsaved work of a session that broke off is there, a message says so.</translation>
    </message>
    <message>
        <source>!Global.openProject(string,file,bool,recover=false):argument0</source>
        <translation>The project; without a suffix, .mrx is added. The name is relative to the folder of the script if the file lies there, otherwise to the current folder.</translation>
    </message>
    <message>
        <source>!Global.openProject(string,file,bool,recover=false):argument1</source>
        <translation>True takes the unsaved work from NAME.mrx.autosave, if there is any, also if the project is newer.</translation>
    </message>
    <message>
        <source>!Global.openProject(string,file,bool,recover=false):example</source>
        <translation>if (!openProject("wing.mrx")) { exit(1) }</translation>
    </message>
    <message>
        <source>!Global.openProject(string,file,bool,recover=false):returnValue</source>
        <comment>return type: bool</comment>
        <translation>True if all of it could be read.</translation>
    </message>
    <message>
        <source>!Global.saveProject(string,file="")</source>
        <translation>Saves the project. The version before stays as NAME.mrx~; a crash while saving leaves the old file or the new one, never half. A project that hasn't changed is left as it is. A project that another process has open isn't saved over.</translation>
    </message>
    <message>
        <source>!Global.saveProject(string,file=""):argument0</source>
        <translation>The file; without a suffix, .mrx is added. The name is relative to the folder of the script if the file lies there already, otherwise to the current folder. The project has this name from then on. By default the present name.</translation>
    </message>
    <message>
        <source>!Global.saveProject(string,file=""):example</source>
        <translation>saveProject("wing.mrx")</translation>
    </message>
    <message>
        <source>!Global.saveProject(string,file=""):returnValue</source>
        <comment>return type: bool</comment>
        <translation>False, with a message, if it couldn't be saved.</translation>
    </message>
    <message>
        <source>!FManaged</source>
        <translation>An object of the model: it has a name, takes part in undo, and is saved in the project.</translation>
    </message>
    <message>
        <source>!FManaged:example</source>
        <translation>parameter span(12.5)
print(exists("span"))</translation>
    </message>
    <message>
        <source>!FDesign.creator.design()</source>
        <translation>A design: it has a name, and a folder of its own for its runs. The name "baseline" counts as taken: that is the folder of the runs without a design.</translation>
    </message>
    <message>
        <source>!FDesign.creator.design():example</source>
        <translation>design slender()
print(exists("slender"))</translation>
    </message>
    <message>
        <source>!FDesign.creator.design():returnValue</source>
        <comment>return type: FDesign</comment>
        <translation>The new design.</translation>
    </message>
    <message>
        <source>!FDesign</source>
        <translation>A design of a study: what has a name and a folder of its own for its runs.</translation>
    </message>
    <message>
        <source>!FDesign:example</source>
        <translation>design slender()</translation>
    </message>
    <message>
        <source>!Global.rename(FManaged,object,string,name)</source>
        <translation>Gives an object another name. Expressions and saved texts that name it follow. A name that is not legal is corrected, and a name that is taken gets a suffix, both with a warning.</translation>
    </message>
    <message>
        <source>!Global.rename(FManaged,object,string,name):example</source>
        <translation>rename(span, "wingSpan")</translation>
    </message>
    <message>
        <source>!Global.rename(FManaged,object,string,name):returnValue</source>
        <comment>return type: FManaged</comment>
        <translation>The object.</translation>
    </message>
    <message>
        <source>!Global.rename(FManaged,object,string,name):argument0</source>
        <translation>The object to rename.</translation>
    </message>
    <message>
        <source>!Global.rename(FManaged,object,string,name):argument1</source>
        <translation>The new name: letters, digits and underscores, and no digit first.</translation>
    </message>
    <message>
        <source>!FPoint</source>
        <translation>A point in space, as geometry to export.</translation>
    </message>
    <message>
        <source>!FPoint:example</source>
        <translation>point tip(0, 12.5, 0.4)</translation>
    </message>
    <message>
        <source>!FPoint.creator.point(double,x=0,double,y=0,double,z=0)</source>
        <translation>Makes a point.</translation>
    </message>
    <message>
        <source>!FPoint.creator.point(double,x=0,double,y=0,double,z=0):argument0</source>
        <translation>The first coordinate, in the unit of length of the model.</translation>
    </message>
    <message>
        <source>!FPoint.creator.point(double,x=0,double,y=0,double,z=0):argument1</source>
        <translation>The second coordinate.</translation>
    </message>
    <message>
        <source>!FPoint.creator.point(double,x=0,double,y=0,double,z=0):argument2</source>
        <translation>The third coordinate.</translation>
    </message>
    <message>
        <source>!FPoint.creator.point(double,x=0,double,y=0,double,z=0):example</source>
        <translation>point tip(0, 12.5, 0.4)</translation>
    </message>
    <message>
        <source>!FPoint.creator.point(double,x=0,double,y=0,double,z=0):returnValue</source>
        <comment>return type: FPoint</comment>
        <translation>The new point.</translation>
    </message>
    <message>
        <source>!FPoint.attribute.setX(double,x)</source>
        <translation>Sets the first coordinate.</translation>
    </message>
    <message>
        <source>!FPoint.attribute.setX(double,x):argument0</source>
        <translation>The coordinate, in the unit of length of the model.</translation>
    </message>
    <message>
        <source>!FPoint.attribute.setX(double,x):example</source>
        <translation>point tip(0, 12.5, 0.4)
tip.setX(1.5)
print(getAttribute(tip, "setX"))</translation>
    </message>
    <message>
        <source>!FPoint.attribute.setY(double,y)</source>
        <translation>Sets the second coordinate.</translation>
    </message>
    <message>
        <source>!FPoint.attribute.setY(double,y):argument0</source>
        <translation>The coordinate, in the unit of length of the model.</translation>
    </message>
    <message>
        <source>!FPoint.attribute.setY(double,y):example</source>
        <translation>point tip(0, 12.5, 0.4)
tip.setY(1.5)
print(getAttribute(tip, "setY"))</translation>
    </message>
    <message>
        <source>!FPoint.attribute.setZ(double,z)</source>
        <translation>Sets the third coordinate.</translation>
    </message>
    <message>
        <source>!FPoint.attribute.setZ(double,z):argument0</source>
        <translation>The coordinate, in the unit of length of the model.</translation>
    </message>
    <message>
        <source>!FPoint.attribute.setZ(double,z):example</source>
        <translation>point tip(0, 12.5, 0.4)
tip.setZ(1.5)
print(getAttribute(tip, "setZ"))</translation>
    </message>
    <message>
        <source>!FGeometryFile</source>
        <translation>Geometry that a file describes. Curves and surfaces of triangles are of this class.</translation>
    </message>
    <message>
        <source>!FGeometryFile:example</source>
        <translation>curve edge("edge.csv")</translation>
    </message>
    <message>
        <source>!FGeometryFile.attribute.setFileName(string,fileName)</source>
        <translation>Sets the file that describes the geometry. It is read when a run exports the geometry. A relative name starts at the folder of the project's file.</translation>
    </message>
    <message>
        <source>!FGeometryFile.attribute.setFileName(string,fileName):argument0</source>
        <translation>The file.</translation>
    </message>
    <message>
        <source>!FGeometryFile.attribute.setFileName(string,fileName):example</source>
        <translation>curve edge()
edge.setFileName("edge.csv")
print(getAttribute(edge, "setFileName"))</translation>
    </message>
    <message>
        <source>!FCurve</source>
        <translation>A curve that a file of points describes, as geometry to export.</translation>
    </message>
    <message>
        <source>!FCurve:example</source>
        <translation>curve edge("edge.csv")</translation>
    </message>
    <message>
        <source>!FCurve.creator.curve(string,fileName="")</source>
        <translation>Makes a curve.</translation>
    </message>
    <message>
        <source>!FCurve.creator.curve(string,fileName=""):argument0</source>
        <translation>A file with one point a line: three numbers, separated by commas.</translation>
    </message>
    <message>
        <source>!FCurve.creator.curve(string,fileName=""):example</source>
        <translation>curve edge("edge.csv")</translation>
    </message>
    <message>
        <source>!FCurve.creator.curve(string,fileName=""):returnValue</source>
        <comment>return type: FCurve</comment>
        <translation>The new curve.</translation>
    </message>
    <message>
        <source>!FTriangles</source>
        <translation>A surface of triangles that a file describes, as geometry to export.</translation>
    </message>
    <message>
        <source>!FTriangles:example</source>
        <translation>triangles hull("hull.stl")</translation>
    </message>
    <message>
        <source>!FTriangles.creator.triangles(string,fileName="")</source>
        <translation>Makes a surface of triangles.</translation>
    </message>
    <message>
        <source>!FTriangles.creator.triangles(string,fileName=""):argument0</source>
        <translation>A file in STL format, ASCII or binary. A binary one can only be exported alone.</translation>
    </message>
    <message>
        <source>!FTriangles.creator.triangles(string,fileName=""):example</source>
        <translation>triangles hull("hull.stl")</translation>
    </message>
    <message>
        <source>!FTriangles.creator.triangles(string,fileName=""):returnValue</source>
        <comment>return type: FTriangles</comment>
        <translation>The new surface.</translation>
    </message>
    <message>
        <source>!FEntityGroup</source>
        <translation>Entities that are exported together.</translation>
    </message>
    <message>
        <source>!FEntityGroup:example</source>
        <translation>point a(0, 0, 0)
point b(1, 0, 0)
entityGroup ends() { .setEntities([a, b]) }</translation>
    </message>
    <message>
        <source>!FEntityGroup.creator.entityGroup()</source>
        <translation>Makes a group without entities.</translation>
    </message>
    <message>
        <source>!FEntityGroup.creator.entityGroup():example</source>
        <translation>entityGroup ends()</translation>
    </message>
    <message>
        <source>!FEntityGroup.creator.entityGroup():returnValue</source>
        <comment>return type: FEntityGroup</comment>
        <translation>The new group.</translation>
    </message>
    <message>
        <source>!FEntityGroup.attribute.setEntities(FCONTAINER,entities)</source>
        <translation>Replaces the entities of the group. An entity that depends on the group is left out, with a warning.</translation>
    </message>
    <message>
        <source>!FEntityGroup.attribute.setEntities(FCONTAINER,entities):argument0</source>
        <translation>The entities. NULL elements are left out.</translation>
    </message>
    <message>
        <source>!FEntityGroup.attribute.setEntities(FCONTAINER,entities):example</source>
        <translation>point a(0, 0, 0)
entityGroup ends()
ends.setEntities([a])
print(getAttribute(ends, "setEntities"))</translation>
    </message>
    <message>
        <source>!FFeatureDefinition</source>
        <translation>Defines geometry as a list of entities, to be exported as a whole.</translation>
    </message>
    <message>
        <source>!FFeatureDefinition:example</source>
        <translation>curve edge("edge.csv")
featureDefinition wing() { .setEntities([edge]) }</translation>
    </message>
    <message>
        <source>!FFeatureDefinition.creator.featureDefinition()</source>
        <translation>Makes a feature definition without entities.</translation>
    </message>
    <message>
        <source>!FFeatureDefinition.creator.featureDefinition():example</source>
        <translation>featureDefinition wing()</translation>
    </message>
    <message>
        <source>!FFeatureDefinition.creator.featureDefinition():returnValue</source>
        <comment>return type: FFeatureDefinition</comment>
        <translation>The new feature definition.</translation>
    </message>
    <message>
        <source>!FFeatureDefinition.attribute.setEntities(FCONTAINER,entities)</source>
        <translation>Replaces the entities that the feature definition makes. An entity that depends on the feature definition is left out, with a warning.</translation>
    </message>
    <message>
        <source>!FFeatureDefinition.attribute.setEntities(FCONTAINER,entities):argument0</source>
        <translation>The entities. NULL elements are left out.</translation>
    </message>
    <message>
        <source>!FFeatureDefinition.attribute.setEntities(FCONTAINER,entities):example</source>
        <translation>curve edge("edge.csv")
featureDefinition wing()
wing.setEntities([edge])
print(getAttribute(wing, "setEntities"))</translation>
    </message>
    <message>
        <source>!FFeatureMember</source>
        <translation>Names one of the entities that a feature definition makes.</translation>
    </message>
    <message>
        <source>!FFeatureMember:example</source>
        <translation>curve edge("edge.csv")
featureDefinition wing() { .setEntities([edge]) }
featureMember front() { .setFeature(wing) }</translation>
    </message>
    <message>
        <source>!FFeatureMember.creator.featureMember()</source>
        <translation>Makes a member that names nothing yet.</translation>
    </message>
    <message>
        <source>!FFeatureMember.creator.featureMember():example</source>
        <translation>featureMember front()</translation>
    </message>
    <message>
        <source>!FFeatureMember.creator.featureMember():returnValue</source>
        <comment>return type: FFeatureMember</comment>
        <translation>The new member.</translation>
    </message>
    <message>
        <source>!FFeatureMember.attribute.setFeature(FFeatureDefinitionBase,feature)</source>
        <translation>Sets the feature definition. One that depends on the member is refused with a warning.</translation>
    </message>
    <message>
        <source>!FFeatureMember.attribute.setFeature(FFeatureDefinitionBase,feature):argument0</source>
        <translation>The feature definition.</translation>
    </message>
    <message>
        <source>!FFeatureMember.attribute.setFeature(FFeatureDefinitionBase,feature):example</source>
        <translation>curve edge("edge.csv")
featureDefinition wing() { .setEntities([edge]) }
featureMember front()
front.setFeature(wing)</translation>
    </message>
    <message>
        <source>!FFeatureMember.attribute.setIndex(int,index)</source>
        <translation>Sets which of the entities of the feature definition is meant.</translation>
    </message>
    <message>
        <source>!FFeatureMember.attribute.setIndex(int,index):argument0</source>
        <translation>The place in the list of entities, from 0.</translation>
    </message>
    <message>
        <source>!FFeatureMember.attribute.setIndex(int,index):example</source>
        <translation>curve edge("edge.csv")
featureDefinition wing() { .setEntities([edge]) }
featureMember front() { .setFeature(wing) }
front.setIndex(0)
print(front.getEntity())</translation>
    </message>
    <message>
        <source>!FFeatureMember.member.getEntity()</source>
        <translation>The entity that the member names.</translation>
    </message>
    <message>
        <source>!FFeatureMember.member.getEntity():example</source>
        <translation>curve edge("edge.csv")
featureDefinition wing() { .setEntities([edge]) }
featureMember front() { .setFeature(wing) }
print(front.getEntity())</translation>
    </message>
    <message>
        <source>!FFeatureMember.member.getEntity():returnValue</source>
        <comment>return type: FEntity</comment>
        <translation>The entity; NULL if there is none at the index.</translation>
    </message>
    <message>
        <source>!FGenIntReader</source>
        <translation>Reads the numbers of an output file into a table, each at the place that its result value describes. It has no commands: a computation uses it when results are requested.</translation>
    </message>
    <message>
        <source>!FGenIntReader:example</source>
        <translation>print(comp.getResults().getTable("out.dat").getElementAt("CD"))</translation>
    </message>
    <message>
        <source>!FGenIntWriter</source>
        <translation>Writes input files from their templates: each tag is replaced by the value of its entry. It has no commands: a computation uses it before a run.</translation>
    </message>
    <message>
        <source>!FGenIntWriter:example</source>
        <translation>genericIntegrationCommandFile input() { .setContent("span = &lt;entry&gt;span&lt;/entry&gt;") }</translation>
    </message>
    <message>
        <source>!FGenIntResultsFileValue</source>
        <translation>Describes where a number is in an output file: line and column from 0, counted from an anchor text or from the top of the file, and whether the average of the last rows is taken. It has no commands; a results file holds a list of them.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFileValue:example</source>
        <translation>genericIntegrationResultsFile drag() { .setFileName("out.dat") }
print(getAttribute(drag, "setValues"))</translation>
    </message>
    <message>
        <source>!FEnum&lt;GenIntAnchorOccurrence&gt;</source>
        <translation>Which occurrence of its anchor text a result value is counted from: First or Last. It has no commands; the words are used in the values of a results file.</translation>
    </message>
    <message>
        <source>!FEnum&lt;GenIntAnchorOccurrence&gt;:example</source>
        <translation>print(First, Last)</translation>
    </message>
    <message>
        <source>!FEnum&lt;SoftConItemSize&gt;</source>
        <translation>Size of the items in a software connector: Large, Medium or Small. It has no commands; the words are arguments of setItemSize.</translation>
    </message>
    <message>
        <source>!FEnum&lt;SoftConItemSize&gt;:example</source>
        <translation>print(Large, Medium, Small)</translation>
    </message>
    <message>
        <source>!FSoftwareConnectorItem</source>
        <translation>A picture with a caption in the window of a software connector. Its context menu copies the name of its file.</translation>
    </message>
    <message>
        <source>!FSoftwareConnectorItem:example</source>
        <translation>softwareConnector wing()
Runner.openSoftwareConnector()</translation>
    </message>
    <message>
        <source>!FSoftConObjectItem</source>
        <translation>A picture that stands for an object of the set-up. A click selects the object, a double click opens it, the button at the frame deletes it with what only it used.</translation>
    </message>
    <message>
        <source>!FSoftConObjectItem:example</source>
        <translation>softwareConnector wing()
Runner.openSoftwareConnector()</translation>
    </message>
    <message>
        <source>!FSoftConComputationItem</source>
        <translation>The computation in the centre. Its context menu runs it, reads existing results, shows the input files as a run would write them, and exports the set-up.</translation>
    </message>
    <message>
        <source>!FSoftConComputationItem:example</source>
        <translation>softwareConnector wing()
Runner.openSoftwareConnector()
refreshAllSoftCons()</translation>
    </message>
    <message>
        <source>!FSoftConTemplateItem</source>
        <translation>A template, shown as a page with the beginning of its text. A double click opens its tab.</translation>
    </message>
    <message>
        <source>!FSoftConTemplateItem:example</source>
        <translation>softwareConnector wing()
genericIntegrationCommandFile case() { .setFileName("case.inp") }
definitionGenInt.setFiles([case])</translation>
    </message>
    <message>
        <source>!FSoftConInputTemplateItem</source>
        <translation>An input template. A click shows the values of its entries.</translation>
    </message>
    <message>
        <source>!FSoftConInputTemplateItem:example</source>
        <translation>softwareConnector wing()
genericIntegrationCommandFile case() { .setContent("a = &lt;entry&gt;a&lt;/entry&gt;") }
definitionGenInt.setFiles([case])</translation>
    </message>
    <message>
        <source>!FSoftConOutputTemplateItem</source>
        <translation>A result template. A click selects nothing.</translation>
    </message>
    <message>
        <source>!FSoftConOutputTemplateItem:example</source>
        <translation>softwareConnector wing()
genericIntegrationResultsFile polar() { .setFileName("polar.dat") }
definitionGenInt.setFiles([polar])</translation>
    </message>
    <message>
        <source>!FSoftConEntryItem</source>
        <translation>An entry that stands for a file. It is called after the file until it gets a name by hand.</translation>
    </message>
    <message>
        <source>!FSoftConEntryItem:example</source>
        <translation>softwareConnector wing()
definitionGenInt.addEntry("Exports|mesh", inputFile("wing.msh"))</translation>
    </message>
    <message>
        <source>!FSoftConExportItem</source>
        <translation>Geometry that is written before a run. More can be dropped on it.</translation>
    </message>
    <message>
        <source>!FSoftConExportItem:example</source>
        <translation>softwareConnector wing()
point tip(1, 2, 3)
definitionGenInt.addEntry("Exports|tip", geometryExport("tip.csv", 0, [tip]))</translation>
    </message>
    <message>
        <source>!FSoftConFileNameItem</source>
        <translation>A file that is copied before a run. A double click makes it an input template.</translation>
    </message>
    <message>
        <source>!FSoftConFileNameItem:example</source>
        <translation>softwareConnector wing()
definitionGenInt.addEntry("Exports|mesh", inputFile("wing.msh"))</translation>
    </message>
    <message>
        <source>!FSoftConFileNameRefItem</source>
        <translation>A file that another computation leaves, and that is copied before a run.</translation>
    </message>
    <message>
        <source>!FSoftConFileNameRefItem:example</source>
        <translation>softwareConnector mesher()
softwareConnector solver()
definitionGenInt_01.addEntry("Exports|mesh", inputFile(Runner.getResults().getResultFileName("wing.msh")))</translation>
    </message>
    <message>
        <source>!FSoftConImportItem</source>
        <translation>A file that a run leaves, for others to use.</translation>
    </message>
    <message>
        <source>!FSoftConImportItem:example</source>
        <translation>softwareConnector wing()
definitionGenInt.addEntry("Imports|field", resultsFileName("field.vtk"))</translation>
    </message>
    <message>
        <source>!FGenIntCommandFileEditor</source>
        <translation>The page of an input template: its text, in which a click makes an entry of a number, and its problems.</translation>
    </message>
    <message>
        <source>!FGenIntCommandFileEditor:example</source>
        <translation>genericIntegrationCommandFile case() { .setContent("a = &lt;entry&gt;a&lt;/entry&gt;") }</translation>
    </message>
    <message>
        <source>!FGenIntResultsFileEditor</source>
        <translation>The page of a result template: the sample, its values, and what they read in it.</translation>
    </message>
    <message>
        <source>!FGenIntResultsFileEditor:example</source>
        <translation>genericIntegrationResultsFile polar() {
    .setFileName("polar.dat")
    .setValues([["cl", 0, 0, "cl", First, "FDouble", ""]])
}</translation>
    </message>
    <message>
        <source>!FSoftwareConnector</source>
        <translation>The view in which a user sets up one external program. It owns one computation with its configuration, its definition and the templates that no other definition lists: destroying the connector destroys them all, and so does destroying the computation. In a program without windows it shows nothing, but keeps all of this.</translation>
    </message>
    <message>
        <source>!FSoftwareConnector:example</source>
        <translation>softwareConnector wing()
print(getAttribute(wing, "setComputation"))</translation>
    </message>
    <message>
        <source>!FSoftwareConnector.attribute.setComputation(FExternComputation,computation)</source>
        <translation>Sets the computation that the connector shows. One without a configuration gets a new one with a new definition. A computation that a connector has already is refused, with a message. The computation set before stays in the model and no longer belongs to the connector.</translation>
    </message>
    <message>
        <source>!FSoftwareConnector.attribute.setComputation(FExternComputation,computation):argument0</source>
        <translation>The computation; NULL for none.</translation>
    </message>
    <message>
        <source>!FSoftwareConnector.attribute.setComputation(FExternComputation,computation):example</source>
        <translation>genericIntegrationComputation solver()
softwareConnector wing()
wing.setComputation(solver)
print(getAttribute(wing, "setComputation"))</translation>
    </message>
    <message>
        <source>!FSoftwareConnector.attribute.setItemSize(FEnum,size)</source>
        <translation>Sets the size of the items in the connector. It has no effect on a run.</translation>
    </message>
    <message>
        <source>!FSoftwareConnector.attribute.setItemSize(FEnum,size):argument0</source>
        <translation>Large, Medium or Small.</translation>
    </message>
    <message>
        <source>!FSoftwareConnector.attribute.setItemSize(FEnum,size):example</source>
        <translation>softwareConnector wing()
wing.setItemSize(Small)</translation>
    </message>
    <message>
        <source>!FSoftwareConnector.attribute.setResultsPath(string,resultsPath)</source>
        <translation>Sets the folder in which the dialog for result files starts. It has no effect on a run.</translation>
    </message>
    <message>
        <source>!FSoftwareConnector.attribute.setResultsPath(string,resultsPath):argument0</source>
        <translation>A folder; "" for none.</translation>
    </message>
    <message>
        <source>!FSoftwareConnector.attribute.setResultsPath(string,resultsPath):example</source>
        <translation>softwareConnector wing()
wing.setResultsPath("/data/wing")</translation>
    </message>
    <message>
        <source>!FSoftwareConnector.creator.softwareConnector()</source>
        <translation>Makes a connector, with a computation named "Runner" and its configuration and definition. The items have the size Medium.</translation>
    </message>
    <message>
        <source>!FSoftwareConnector.creator.softwareConnector():example</source>
        <translation>softwareConnector wing()
Runner.setExecutable("solver")</translation>
    </message>
    <message>
        <source>!FSoftwareConnector.creator.softwareConnector():returnValue</source>
        <comment>return type: FSoftwareConnector</comment>
        <translation>The connector.</translation>
    </message>
    <message>
        <source>!Global.chooseResultsFile()</source>
        <translation>Has the user choose a result file of another connector. Without windows it gives NULL, with a message.</translation>
    </message>
    <message>
        <source>!Global.chooseResultsFile():example</source>
        <translation>file = chooseResultsFile()</translation>
    </message>
    <message>
        <source>!Global.chooseResultsFile():returnValue</source>
        <comment>return type: FString</comment>
        <translation>The expression that names the file; NULL if none was chosen.</translation>
    </message>
    <message>
        <source>!Global.refreshAllSoftCons()</source>
        <translation>Updates all connectors and has their editors of input templates show the present content.</translation>
    </message>
    <message>
        <source>!Global.refreshAllSoftCons():example</source>
        <translation>refreshAllSoftCons()</translation>
    </message>
</context>
</TS>
