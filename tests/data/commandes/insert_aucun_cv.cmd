insert sans_cv0.rou un.rou 1 OUT
