#pragma once
class QWidget;
class QString;
struct ApplicationState;

// Shows the new-collection wizard modally. On Finish the edited CollectionSettings and the
// marked TopicTree stay in the state; returns SettingsAccepted.
bool RunNewCollectionWizard(ApplicationState& app, QWidget* parent);
// Shows the collection properties modally; returns SettingsAccepted. The undo point and
// the recomposition are the caller's (the collection properties command).
bool RunCollectionProperties(ApplicationState& app, QWidget* parent);

// The folder that holds the subject pictures: the data folder beside the program, or the
// one of the source tree above a build.
QString SubjectPictureFolder(const ApplicationState& app);
