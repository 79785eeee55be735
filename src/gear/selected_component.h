#pragma once

/// A screen in which one component is selected, as rules know it.
class SelectsComponent {
 public:
  virtual ~SelectsComponent() = default;
  virtual int SelectedComponent() const = 0;  ///< 0 when none is
};
