#pragma once

#include <drawing/drawfunctions.h>
#include <model/topology.h>

#include <QObject>
#include <QStringList>

#include <array>
#include <memory>
#include <optional>

class FunctionMenu;
class MeasureTool;
class MouseModes;
class NetData;
class NetPicker;
class NetPlot;
class ViewBookmarks;
class QAction;
class QKeySequence;
class QMenu;

/// What can be done with a drawing and with what is selected in it, each an action that menus, tool bars and lists of
/// commands share. Their keys hold in the whole window that shows the drawing.
class PlotActions : public QObject {
  Q_OBJECT
public:
  enum class Command {
    Back,
    Forward,
    WholeNetwork,
    ToSelection,
    ZoomIn,
    ZoomOut,
    FarOutside,
    BookmarkView,
    DragZooms,
    DragSelects,
    DragPans,
    Measure,
    Labels,
    PlaceLabels,
    UnplacedLabels,
    SearchResults,
    Configure,
    SavePicture,
    SavePictureWithWidth,
    CopyPicture,
    SelectAll,
    SelectNone,
    ShowInfo,
    EditProperties,
    Characteristics,
    SubnetWindow,
    Upstream,
    Downstream,
    ProfileOfSelection,
    ProfileFrom,
    ProfileTo,
    Count
  };

  /// What a window answers; commands that nobody would answer are greyed.
  struct Answered {
    bool hasInfo = false;
    bool hasProperties = false;
    bool hasCharacteristics = false;
    bool hasSubnetWindows = false;
    bool hasConfiguration = false;
  };

  /// What they act on.
  struct Subject {
    NetPlot &plot;
    NetPicker &picker;
    NetData &net;
    ViewBookmarks &bookmarks; ///< of the case
    MouseModes &modes;
    MeasureTool &measure;
  };

  explicit PlotActions(const Subject &subject);
  ~PlotActions() override;

  QAction *operator[](Command command) const { return m_actions[static_cast<std::size_t>(command)]; }
  /// Chooses the draw function of the aspect; filled when it is about to be shown.
  QMenu *functionMenu(Aspect aspect) const;
  /// The functions that the network has; found when they are first asked for.
  const DrawFunction::OfNetwork &ofNetwork();
  /// What the function in use shows, such as "pressure"; empty when there is none.
  QString functionInUse(Aspect aspect) const;
  /// Greys what cannot be done now and checks what holds; for menus that are about to be shown. Costs nothing that grows
  /// with the network.
  void refresh(const Answered &answered);
  /// Compressors and drives among what is selected; none where they are too many to be meant.
  QStringList selectedMachines() const;
  /// After values have changed, with which other functions may have come.
  void forgetFunctions() { m_ofNetwork.reset(); }
  /// As refresh() of what is seen all the time: after another view, selection or network.
  void refreshSeen();

signals:
  void told(const QString &text); ///< what a command came to, for the eye
  void functionsInUseChanged();   ///< or the network that they are of
  void settingsChosen();          ///< by one of these commands
  // What somebody else is to do.
  void showRequested(const QString &name);
  void infoRequested(const QString &name);
  void propertiesRequested(const QStringList &names);
  void characteristicsRequested(const QStringList &names);
  void subnetRequested(const QString &name); ///< in a window of its own
  void traceRequested(const QString &name, Topology::Direction direction);
  void profileRequested(const QStringList &nodes); ///< of a path that passes them, in any order
  void profileFromRequested(const QString &node);
  void profileToRequested(const QString &node);
  void configureRequested();
  void searchResultsRequested(bool shown);

private:
  template <typename Done>
  QAction *add(Command command, const QString &text, const QKeySequence &key, const QString &tip, const Done &done);
  void addView();
  void addModes();
  void addDrawing();
  void addPicture();
  void addSelection();
  void addProfile();
  void refreshHistory();
  void refreshSelection();
  void setLabelsShown(bool shown);
  void copyPicture();
  void bookmarkView();
  void listUnplacedLabels();
  void trace(Topology::Direction direction);

  NetPlot &m_plot;
  NetPicker &m_picker;
  NetData &m_net;
  ViewBookmarks &m_bookmarks;
  MouseModes &m_modes;
  MeasureTool &m_measure;
  QString m_labelMode; ///< before labels were hidden
  std::array<QAction *, static_cast<std::size_t>(Command::Count)> m_actions{};
  PerAspect<std::unique_ptr<FunctionMenu>> m_functions;
  std::optional<DrawFunction::OfNetwork> m_ofNetwork; ///< a walk over all of it, done once it is asked for
};
