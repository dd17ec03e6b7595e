object F: TForm
  object R: TAlReport
    LeftMarginMM = -9223372036854775808
  end
end
