#pragma once
#include <QRandomGenerator>
#include <QString>

#include <memory>
#include <vector>

#include "core/widgets/form.h"

/// A screen that stands beside the others.
struct ScreenKind {
  QString name;
  int weight;  ///< how often it is worked, among the others
  /// Opens it as its door does, on something drawn from what there is.
  void (*open)(QRandomGenerator& random);
  /// Another instance, fresh from the database, on the same selection as one that is open; null where the open one does
  /// not tell what it was opened on. None at all for a screen that shows nothing of the loft.
  std::unique_ptr<Form> (*fresh)(const Form& open);
};

const std::vector<ScreenKind>& ScreenKinds();
