object F: TForm
  Tag = 99999999999999999999
end
