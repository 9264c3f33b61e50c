"""The board: raised mahogany on the left, a recessed walnut field on the right."""
