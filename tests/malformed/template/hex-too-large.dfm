object F: TForm
  Tag = -$FFFFFFFFFFFFFFFF
end
